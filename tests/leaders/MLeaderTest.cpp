// Multileaders: the content rows by content type, the read-only tests of
// the landing rows, and an edited text read back by ezdxf.
#include "LeadersTestSupport.h"
#include "DbMLeader.h"

namespace {

const char* kText = "732";  // the text multileader of the leader sample

class MLeaderTest : public ZqLeadersTest {};

struct ContentCase {
  int contentType;
  int attachmentType;  // 0 horizontal, 1 vertical
  std::vector<std::string> rows;  // from "Leaders/Overall scale" on
};

TEST_F(MLeaderTest, ContentRowsFollowTheContentType) {
  load("libredwg__test__test-data__2010__Leader.dxf");
  const std::vector<std::string> always = {"Leaders/Overall scale", "Leaders/Horizontal landing",
                                           "Leaders/Landing distance", "Misc/Annotative"};
  auto with = [&](std::vector<std::string> more) {
    std::vector<std::string> out = always;
    out.insert(out.end(), more.begin(), more.end());
    return out;
  };
  const std::vector<std::string> head = {"Text/Attachment type", "Text/Background mask", "Text/Content", "Text/Direction",
                                         "Text/Height", "Text/Justify", "Text/Landing gap"};
  const std::vector<std::string> tail = {"Text/Line space factor", "Text/Line space style", "Text/Line space distance",
                                         "Text/Rotation", "Text/Text frame", "Text/TextStyle", "Text/Width"};
  auto text = [&](std::vector<std::string> sides) {
    std::vector<std::string> out = head;
    out.insert(out.end(), sides.begin(), sides.end());
    out.insert(out.end(), tail.begin(), tail.end());
    return with(out);
  };
  const ContentCase cases[] = {
      {OdDbMLeader::kNoneContent, 0, with({})},
      {OdDbMLeader::kBlockContent, 0, with({"Block/Block name", "Block/Color", "Block/Scale"})},
      {OdDbMLeader::kToleranceContent, 0, with({"Tolerance/Attachment"})},
      {OdDbMLeader::kMTextContent, 0, text({"Text/Left attachment", "Text/Right attachment"})},
      {OdDbMLeader::kMTextContent, 1, text({"Text/Top attachment", "Text/Bottom attachment"})},
  };
  const OdDbObjectId id = object(kText);
  for (const ContentCase& c : cases) {
    SCOPED_TRACE(c.contentType * 10 + c.attachmentType);
    {
      OdDbMLeaderPtr m = openAs<OdDbMLeader>(id, OdDb::kForWrite);
      m->setContentType(c.contentType);
      m->setTextAttachmentType(c.attachmentType);
    }
    EXPECT_EQ(ownRows(id, "Leaders/Overall scale"), c.rows);
  }
  OdDbObjectPtr o = id.openObject();
  auto rows = zqRowsOf(o.get());
  const CZqPropertyDescription* bottom = zqRow(rows.get(), "Text", "Bottom attachment");
  ASSERT_NE(bottom, nullptr);
  EXPECT_EQ(bottom->GetLightIcon().qstring(), ":/Mleader/svg_icons/light//Mleader/mld_RightAttachment.sv");
  EXPECT_EQ(zqRow(rows.get(), "Text", "Top attachment")->GetDarkIcon().qstring(),
            ":/Mleader/svg_icons/dark/Mleader/mld_LeftAttachment.svg");
  EXPECT_EQ(zqRow(rows.get(), "Misc", "Multi leader Style")->GetType().GetTypeId().qstring(), CZqPropertyType::kMLeaderStyleGUID);
}

TEST_F(MLeaderTest, LandingRowsAreReadOnlyWithoutALandingOrALeader) {
  load("libredwg__test__test-data__2010__Leader.dxf");
  const OdDbObjectId id = object(kText);
  EXPECT_FALSE(readOnly(id, "Leaders", "Landing distance"));
  openAs<OdDbMLeader>(id, OdDb::kForWrite)->setDoglegEnabled(0);
  EXPECT_TRUE(readOnly(id, "Leaders", "Landing distance"));
  EXPECT_FALSE(readOnly(id, "Leaders", "Horizontal landing"));
  openAs<OdDbMLeader>(id, OdDb::kForWrite)->setLeaderLineType(OdDbMLeader::kInVisibleLeader);
  EXPECT_TRUE(readOnly(id, "Leaders", "Horizontal landing"));
  EXPECT_EQ(set(id, "Leaders", "Landing distance", CZqVariant(-1.0, true)), kZqSetRefused);
  EXPECT_EQ(GetZqSystemServices()->Messages().back().text, "Value must be non-negative");
}

TEST_F(MLeaderTest, EditedTextIsReadBackByEzdxf) {
  load("libredwg__test__test-data__2010__Leader.dxf");
  ASSERT_EQ(set(object(kText), "Text", "Content", CZqVariant(CZqString("Bolt M8\\Pwelded"))), kZqSetApplied);
  ASSERT_EQ(set(object(kText), "Leaders", "Arrow size", CZqVariant(0.5, true)), kZqSetApplied);
  const QByteArray bytes = saved();
  const auto rows = ezdxfRows(bytes,
                              "e = doc.entitydb['732']\n"
                              "print('732', e.context.mtext.default_content, e.dxf.arrow_head_size, len(e.context.leaders))\n");
  EXPECT_EQ(rows["732"], (QStringList{"732", "Bolt", "M8\\Pwelded", "0.5", "1"}));
  // Only the two values changed: the record is as long as before.
  EXPECT_EQ(bytes.count('\n'), original().count('\n'));
}

}  // namespace
