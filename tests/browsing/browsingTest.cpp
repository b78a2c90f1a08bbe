#include "actions.h"
#include "hostBrRegistry.h"
#include "hostToolRegistry.h"
#include "hostViewFactory.h"
#include "lookup.h"
#include "noLeaks.h"
#include "refusal.h"
#include "safeText.h"
#include "search.h"
#include "session.h"
#include "temporaryDirectory.h"

namespace Qv {

namespace {

using Strings = std::vector<std::string>;

constexpr char Catalogue[] = R"({
  "tools": [
    {"name": "saw", "category": "Wood", "tooltip": "Sharp."}, {"name": "größe", "category": "Wood"},
    {"name": "sawmill", "category": "Wood"}, {"name": "Chainsaw", "category": "GRÖSSE"},
    {"name": "sa\u0308ge", "category": "Wood"}, {"name": "SAW", "category": "Wood"},
    {"name": "saw", "category": "Wood"}, {"name": "Kit", "category": "Kit", "superTool": true}],
  "views": [
    {"name": "plan", "label": "Site plan"}, {"name": "übersichtsplan", "label": "Overview"}]})";

/// Opens sessions. What they allocate goes with them.
class Browsing : public NoLeaks, protected TemporaryDirectory {
protected:
  /// Has the registries and libraries allocate what they keep.
  static void SetUpTestSuite() {
    Session const session({.sources = {RESOURCE_DIR "/sampleCatalogue.json"}});
  }

  Session::Options from(char const* catalogue) const {
    return {.sources = {write("catalogue.json", catalogue)}};
  }
};

bool isHostEmpty() {
  return HostToolRegistry::getInstance().getCategories().atEnd() &&
         !HostToolRegistry::getInstance().findTool("saw", false) &&
         HostViewFactory::getInstance().getNames().empty() &&
         HostBrRegistry::getInstance().getServers().empty();
}

TEST_F(Browsing, opensOneSessionAfterTheOther) {
  for (char const* const catalogue : {Catalogue, R"({"categories": ["Metal"]})", Catalogue}) {
    Session const session(from(catalogue));
    EXPECT_EQ(session.getStartup().front().key, "pluginBrowserQvmodule");
    EXPECT_EQ(getChildren(*findItem("tools", "")).size(), catalogue == Catalogue ? 3U : 1U);
  }
  EXPECT_TRUE(isHostEmpty());
}

TEST_F(Browsing, leavesTheHostEmptyWhereASessionCannotBeOpened) {
  Session::Options const good = from(Catalogue);
  Session::Options noModule = good;
  noModule.module = directory_ / "missing";
  Session::Options twice = good;
  twice.sources.push_back(good.sources[0]);
  Session::Options noSource = good;
  noSource.sources.emplace_back("missing");
  for (Session::Options const& options : {noModule, twice, noSource}) {
    EXPECT_THROW(Session const session(options), HostError);
    EXPECT_TRUE(isHostEmpty());
  }
}

TEST_F(Browsing, findsTheBestMatchesFirst) {
  Session const session(from(Catalogue));
  for (auto const& [scheme, text, expected] :
       std::vector<std::tuple<char const*, char const*, Strings>>{
           {"tools", "saw", {"Wood/saw", "Wood/SAW", "Wood/sawmill", "GRÖSSE/Chainsaw"}},
           {"tools", "größe", {"Wood/größe", "GRÖSSE"}},
           {"tools", "SÄGE", {"Wood/sa\u0308ge"}},
           {"tools", "kit", {"Kit", "Kit/Kit"}},
           {"tools", "wood", {"Wood"}},
           {"tools", "SHARP", {"Wood/saw"}},
           {"views", "plan", {"plan", "übersichtsplan"}},
           {"views", "ÜBER", {"übersichtsplan"}},
           {"views", "e", {"plan", "übersichtsplan"}}}) {
    Search search(*findItem(scheme, ""), text);
    while (search.step())
      continue;
    Strings paths;
    for (Search::Found const& found : search.getResult())
      paths.push_back(found.item->getPath());
    EXPECT_EQ(paths, expected) << text;
  }
}

TEST_F(Browsing, searchesStepByStep) {
  Session const session(from(Catalogue));
  Search search(*findItem("views", ""), "plan");
  for (std::size_t const found : {1, 2}) {
    EXPECT_TRUE(search.step());
    EXPECT_EQ(search.getResult().size(), found);
  }
  EXPECT_FALSE(search.step());
}

TEST_F(Browsing, takesOnlyPathsThatAreListed) {
  Session const session(from(Catalogue));
  Strings paths;
  for (RCShdPtr<BrBrowsable> const& item :
       findListedItems("tools", {"//Kit//", "", "Wood/saw", "/Wood//größe", "Wood/saw"}))
    paths.push_back(item->getPath());
  EXPECT_EQ(paths, (Strings{"Kit", "", "Wood/saw", "Wood/größe", "Wood/saw"}));

  for (auto const& [scheme, path, refusal] :
       std::vector<std::tuple<char const*, char const*, char const*>>{
           {"tools", "wod", "tools: no item \"wod\" is listed; did you mean \"Wood\"?"},
           {"tools", "Wood/mill",
            "tools: no item \"Wood/mill\" is listed; did you mean \"Wood/sawmill\"?"},
           {"views", "site  plan",
            "views: no item \"site  plan\" is listed; did you mean \"plan\"?"},
           {"tools", "Kit/xyz", "tools: no item \"Kit/xyz\" is listed"},
           {"tools", "Steel/saw", "tools: no item \"Steel/saw\" is listed"},
           {"tools", "a/b/c/d", "tools: \"a/b/c/d\" has more than two components"},
           {"views", "a/b", "views: \"a/b\" has more than one component"}})
    EXPECT_EQ(std::string(thrownBy<std::invalid_argument>([&, scheme = scheme, path = path] {
                            findListedItems(scheme, {"", path});
                          }).what()),
              refusal);
}

TEST_F(Browsing, tellsThatAnActionNeedsAWorkspace) {
  Session const session(from(Catalogue));
  RCShdPtr<BrBrowsable> const plan = findItem("views", "plan");
  EXPECT_EQ(refusalOf([&] { performAction("Open", plan, RCShdPtr<HostWorkspace>()); }),
            "the action \"Open\" needs a workspace, and none is open");
}

TEST(SafeText, escapesWhatIsNotPlainTextAndBack) {
  for (auto const& [text, safe] : std::vector<std::pair<std::string, std::string>>{
           {"größe 漢字 e\u0301", "größe 漢字 e\u0301"},
           {"a\nb\tc", R"(a\nb\x09c)"},
           {"\x1b[31m\x7f", R"(\x1b[31m\x7f)"},
           {"\u0085", R"(\xc2\x85)"},
           {"caf\xe9", R"(caf\xe9)"},
           {"\xe6\xbc", R"(\xe6\xbc)"},
           {R"(a\nb)", R"(a\\nb)"},
           {"a\u202eb", R"(a\xe2\x80\xaeb)"},
           {"\u200b\u2028\ufeff\u3164", R"(\xe2\x80\x8b\xe2\x80\xa8\xef\xbb\xbf\xe3\x85\xa4)"}}) {
    EXPECT_EQ(escaped(text), safe);
    EXPECT_EQ(unescaped(safe), text);
  }
  EXPECT_EQ(escaped(std::string("a\0b", 3)), R"(a\x00b)");
  for (std::string const none : {R"(a\b\)", R"(\x0)", R"(\x00\xfg)"})
    EXPECT_EQ(unescaped(none), none);
}

} // namespace

} // namespace Qv
