// The Hyperlink row refuses text a drawing file cannot hold (line breaks,
// tabs, other control characters) with a message and leaves the entity as
// it was; an ordinary hyperlink survives a save and a load.
#include "ZqTestSupport.h"
#include "DxfDatabase.h"

namespace {

class HyperlinkTextTest : public ZqDrawingTest {};

TEST_F(HyperlinkTextTest, ControlCharactersAreRefusedAndChangeNothing) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  ASSERT_EQ(set(id, "General", "Hyperlink", CZqVariant("https://example.org/a")), 5100);
  const struct {
    const char* name;
    QString text;
  } cases[] = {
      {"line feed", QStringLiteral("https://example.org/\nb")},
      {"carriage return", QStringLiteral("https://example.org/\rb")},
      {"tab", QStringLiteral("https://example.org/\tb")},
      {"other control", QStringLiteral("https://example.org/") + QChar(0x01) + QStringLiteral("b")},
      {"delete", QStringLiteral("https://example.org/") + QChar(0x7F)},
      {"NUL", QStringLiteral("https://example.org/") + QChar(0) + QStringLiteral("b")},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    GetZqSystemServices()->ClearMessages();
    EXPECT_EQ(set(id, "General", "Hyperlink", CZqVariant(CZqString(c.text))), -5001);
    ASSERT_EQ(messageCount(), 1u);
    EXPECT_EQ(GetZqSystemServices()->Messages()[0].text.qstring(),
              "A hyperlink cannot contain line breaks or control characters");
    EXPECT_EQ(get(id, "General", "Hyperlink").GetString().qstring(), "https://example.org/a");
  }
}

// The refusal comes from the entity itself: every text of a hyperlink is
// checked, and a refused call leaves the entity unmodified.
TEST_F(HyperlinkTextTest, EntityRefusesEveryTextOfAHyperlink) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  const QString bad = QStringLiteral("a\nb");
  const OdDbHyperlink links[] = {{OdString(bad), {}, {}}, {OdString("u"), OdString(bad), {}}, {OdString("u"), {}, OdString(bad)}};
  for (const OdDbHyperlink& link : links) {
    auto line = openAs<OdDbEntity>(id, OdDb::kForWrite);
    line->setModified(false);
    OdArray<OdDbHyperlink> list;
    list.append(link);
    EXPECT_THROW(line->setHyperlinks(list), OdError);
    EXPECT_TRUE(line->hyperlinks().isEmpty());
    EXPECT_FALSE(line->isModified());
  }
}

TEST_F(HyperlinkTextTest, OrdinaryHyperlinkSurvivesSaveAndLoad) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  const QString url = QStringLiteral("https://example.org/a b?x=1&y=\u00e4#Teil 2");
  ASSERT_EQ(set(id, "General", "Hyperlink", CZqVariant(CZqString(url))), 5100);
  QString error;
  const QByteArray bytes = OdDxf::writeDrawing(db.get(), &error);
  ASSERT_FALSE(bytes.isEmpty()) << error.toStdString();
  OdDbDatabasePtr back = OdDxf::readDrawing(bytes, error);
  ASSERT_TRUE(back) << error.toStdString();
  OdDbObjectPtr obj = back->getOdDbObjectId(id.getHandle()).openObject();
  auto* line = OdDbEntity::cast(obj.get()).get();
  ASSERT_TRUE(line);
  ASSERT_EQ(line->hyperlinks().size(), 1u);
  EXPECT_EQ(line->hyperlinks()[0].name.qstring(), url);
}

}  // namespace
