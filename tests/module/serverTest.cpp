#include "moduleTest.h"

namespace Qv {

namespace {

using testing::ElementsAre;

struct ServerKind {
  char const* scheme;
  char const* nameTitle;
  char const* path;
  char const* refusedPath;
  OPtr<BrServer> (*create)();
};

class Server : public ModuleTest, public testing::WithParamInterface<ServerKind> {};

/// The columns of a server, by what makes each.
void expectColumns(BrServer const& server, char const* nameTitle) {
  RCShdPtr<BrAttribList> const list = server.getAttributesList();
  EXPECT_EQ(list->getSortKey(), int(BrBrowsable::NAME));
  ASSERT_EQ(list->getAttribs().size(), 2U);

  BrAttrib const& type = *list->getAttribs()[0];
  EXPECT_EQ(type.getName(), "Type");
  EXPECT_EQ(type.getAttributeId(), BrBrowsable::BROWSABLE_TYPE);
  EXPECT_EQ(type.getDataType(), BrBrowsable::ICON);
  EXPECT_EQ(type.getMinW(), 32);
  EXPECT_EQ(type.getMaxW(), 32);
  EXPECT_THAT(type.getAttributes(), ElementsAre(1, 3, 5, 6, 9));
  EXPECT_TRUE(type.isDisplayed());
  EXPECT_FALSE(type.auxFlag);
  EXPECT_EQ(type.auxText, "");

  BrAttrib const& name = *list->getAttribs()[1];
  EXPECT_EQ(name.getName(), nameTitle);
  EXPECT_EQ(name.getAttributeId(), BrBrowsable::NAME);
  EXPECT_EQ(name.getDataType(), BrBrowsable::STRING);
  EXPECT_EQ(name.getMinW(), BrAttrib::DEFAULT_MIN_WIDTH);
  EXPECT_EQ(name.getMaxW(), BrAttrib::DEFAULT_MAX_WIDTH);
  EXPECT_EQ(name.getCurrentW(), 365);
  EXPECT_THAT(name.getAttributes(), ElementsAre(0, 2, 5, 7, 8));
  EXPECT_TRUE(name.isDisplayed());
  EXPECT_TRUE(name.auxFlag) << "the second column keeps what create() gives";
}

TEST_P(Server, hasItsColumnsAndSoHasItsClone) {
  OPtr<BrServer> const owner = GetParam().create();
  BrServer const& server = *owner;
  expectColumns(server, GetParam().nameTitle);
  server.getAttributesList()->append(server.getAttributesList()->getAttribs()[0]);

  OPtr<BrServer> const cloneOwner(server.clone());
  BrServer const& clone = *cloneOwner;
  EXPECT_EQ(typeid(clone), typeid(server));
  expectColumns(clone, GetParam().nameTitle);
}

TEST_P(Server, givesTheNodeForAPath) {
  OPtr<BrServer> const server = GetParam().create();
  EXPECT_EQ(server->getSchemeName(), GetParam().scheme);
  EXPECT_TRUE(server->isObservable());
  LiString message("untouched");
  for (char const* path : {"", GetParam().path}) {
    RCShdPtr<BrBrowsable> const item = server->getNode(path, message)->getBrowsable();
    EXPECT_EQ(item->getSchemeName(), GetParam().scheme);
    EXPECT_EQ(item->getPath(), path);
    EXPECT_EQ(item->getServer(), server.get());
    EXPECT_EQ(item->getRefCount(), 1) << "the node is gone";
  }
  EXPECT_THROW(server->getNode(GetParam().refusedPath, message), ExProgramAborted);
  EXPECT_EQ(message, "untouched");
}

template <class T> OPtr<BrServer> make() { return OPtr<BrServer>(new T); }

INSTANTIATE_TEST_SUITE_P(
    Of, Server,
    testing::Values(ServerKind{"tools", "Tool", "Colour//invert/", "a/b/c/d", make<PbrToolServer>},
                    ServerKind{"views", "View", "//graph/", "a/b/c", make<PbrViewServer>}),
    [](auto const& info) { return std::string(info.param.scheme); });

} // namespace

} // namespace Qv
