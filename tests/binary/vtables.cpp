#include "vtables.h"

#include <cxxabi.h>
#include <dlfcn.h>
#include <link.h>
#include <map>
#include <memory>
#include <regex>
#include <stdexcept>

namespace Qv {

std::string readable(char const* symbol) {
  std::unique_ptr<char, decltype(&std::free)> const demangled(
      abi::__cxa_demangle(symbol, nullptr, nullptr, nullptr), &std::free);
  std::string name = demangled ? demangled.get() : symbol;
  name = std::regex_replace(
      name,
      std::regex("std::__cxx11::basic_string<char, std::char_traits<char>, std::allocator<char> >"),
      "std::string");
  name = std::regex_replace(name, std::regex(R"(Qv::|\[abi:cxx11\])"), "");
  return std::regex_replace(name, std::regex(R"( >)"), ">");
}

std::vector<std::string> slots(std::type_info const& type) {
  std::string const tableSymbol = std::string("_ZTV") + type.name();
  auto const table = reinterpret_cast<ElfW(Addr)>(dlsym(RTLD_DEFAULT, tableSymbol.c_str()));
  if (!table)
    throw std::runtime_error("no library exports " + tableSymbol);
  auto const* const address = reinterpret_cast<void const*>(table);
  Dl_info info;
  void* entry = nullptr;
  dladdr1(address, &info, &entry, RTLD_DL_SYMENT);
  std::size_t const size = static_cast<ElfW(Sym) const*>(entry)->st_size;
  void* map = nullptr;
  dladdr1(address, &info, &map, RTLD_DL_LINKMAP);
  auto const* const library = static_cast<link_map const*>(map);

  // The relocations of the library name the function of each slot. Its address would not do, since
  // compilers let functions of the same code share one.
  std::map<ElfW(Sxword), ElfW(Addr)> dynamic;
  for (ElfW(Dyn) const* tag = library->l_ld; tag->d_tag != DT_NULL; ++tag)
    dynamic[tag->d_tag] = tag->d_un.d_ptr;
  auto const* const symbols = reinterpret_cast<ElfW(Sym) const*>(dynamic[DT_SYMTAB]);
  auto const* const strings = reinterpret_cast<char const*>(dynamic[DT_STRTAB]);
  auto const* const relocations = reinterpret_cast<ElfW(Rela) const*>(dynamic[DT_RELA]);
  std::map<ElfW(Addr), std::string> functions;
  for (std::size_t index = 0; index < dynamic[DT_RELASZ] / sizeof(ElfW(Rela)); ++index) {
    ElfW(Addr) const place = library->l_addr + relocations[index].r_offset;
    if (place >= table && place < table + size)
      functions[place] =
          readable(strings + symbols[ELF64_R_SYM(relocations[index].r_info)].st_name);
  }

  std::vector<std::string> names;
  // The offset to the top and the type information come first.
  for (ElfW(Addr) place = table + 2 * sizeof(void*); place < table + size; place += sizeof(void*)) {
    bool const written = functions.contains(place);
    std::string const function = written ? functions[place] : "";
    // Sanitizers let a table end in words that nothing is written to.
    if (!written && !names.empty())
      continue;
    if (!written || function.find('~') != std::string::npos) {
      names.emplace_back("~");
      // The destructor that also frees the memory follows, by whatever name.
      place += sizeof(void*);
    } else {
      names.push_back(function == "__cxa_pure_virtual" ? "pure"
                      : function.empty()               ? "hidden"
                                                       : function);
    }
  }
  return names;
}

} // namespace Qv
