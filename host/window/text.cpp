#include "text.h"

#include "safeText.h"

#include <QStringList>

namespace Qv {

namespace {

std::string_view cut(std::string_view text, std::size_t length) {
  if (text.size() <= length)
    return text;
  while (length > 0 && (static_cast<unsigned char>(text[length]) & 0xC0U) == 0x80U)
    --length;
  return text.substr(0, length);
}

QStringList splitLines(std::string_view text, std::string_view separator) {
  QStringList lines;
  for (;;) {
    std::size_t const end = text.find(separator);
    lines << QString::fromStdString(escaped(std::string(text.substr(0, end))));
    if (end == std::string_view::npos)
      return lines;
    text.remove_prefix(end + separator.size());
  }
}

/// Lets a line break within long words: a tooltip does so at spaces alone.
QString breakable(QString const& line) {
  constexpr int LongestWord = 60;
  QString result;
  int word = 0;
  for (QChar const character : line) {
    word = character.isSpace() ? 0 : word + 1;
    if (word > LongestWord && !character.isLowSurrogate()) {
      result += QChar(0x200B);
      word = 1;
    }
    result += character;
  }
  return result;
}

} // namespace

QString shown(std::string_view text, Place place) {
  std::size_t const longest = place == Place::Box ? 16'384 : place == Place::Label ? 80 : 1'000;
  std::string_view const part = cut(text, longest);
  QString const end = part.size() < text.size() ? QString(QChar(0x2026)) : QString();
  switch (place) {
  case Place::Box:
    return splitLines(part, "\n").join('\n') + end;
  case Place::Tooltip: {
    QStringList lines = splitLines(part, "<br>");
    for (QString& line : lines)
      line = breakable(line).toHtmlEscaped();
    return text.empty() ? QString() : "<html>" + lines.join("<br/>") + end + "</html>";
  }
  case Place::Label:
    return splitLines(part, "\n").join(' ').replace('&', "&&") + end;
  case Place::Line:
    break;
  }
  return QString::fromStdString(escaped(std::string(part))) + end;
}

} // namespace Qv
