#include "moduleTest.h"

#include "assertions.h"
#include "pbrToolServer.h"

namespace Qv {

namespace {

using testing::ElementsAre;

class ToolServer : public ModuleTest {};

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

TEST_F(ToolServer, hasItsColumnsAndSoHasItsClone) {
  PbrToolServer server;
  expectColumns(server, "Tool");
  server.getAttributesList()->append(server.getAttributesList()->getAttribs()[0]);

  OPtr<BrServer> const clone(server.clone());
  EXPECT_EQ(typeid(*clone), typeid(PbrToolServer));
  expectColumns(*clone, "Tool");
}

TEST_F(ToolServer, givesTheNodeForAPath) {
  PbrToolServer server;
  EXPECT_EQ(server.getSchemeName(), "tools");
  EXPECT_TRUE(server.isObservable());
  LiString message("untouched");
  for (char const* path : {"", "Colour", "Colour/invert"})
    EXPECT_EQ(server.getNode(path, message)->getBrowsable()->getPath(), path);
  EXPECT_THROW(server.getNode("a/b/c", message), ExProgramAborted);
  EXPECT_EQ(message, "untouched");
  EXPECT_EQ(server.getRootNode()->getBrowsable()->getPath(), "");
}

} // namespace

} // namespace Qv
