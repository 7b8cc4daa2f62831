// Text with line breaks, tabs or other control characters cannot be a DXF
// string value: storing it is refused with a clear error (never written as
// an empty value), and the drawing's records stay as they were. A file that
// already holds such a hyperlink loads, keeps it as read, and says so.
#include "DxfDatabaseSupport.h"

#include "OdResBuf.h"

using namespace dxfdb;

namespace {

const QByteArray kDrawing =
    "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nTABLES\n  0\nTABLE\n  2\nAPPID\n  5\n9\n100\nAcDbSymbolTable\n 70\n2\n"
    "  0\nAPPID\n  5\n12\n100\nAcDbSymbolTableRecord\n100\nAcDbRegAppTableRecord\n  2\nACAD\n 70\n0\n"
    "  0\nAPPID\n  5\n13\n100\nAcDbSymbolTableRecord\n100\nAcDbRegAppTableRecord\n  2\nPE_URL\n 70\n0\n"
    "  0\nENDTAB\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nENTITIES\n"
    "  0\nLINE\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbLine\n 10\n1.0\n 20\n2.0\n 30\n0.0\n"
    " 11\n3.0\n 21\n4.0\n 31\n0.0\n"
    "  0\nENDSEC\n  0\nEOF\n";

QStringList controlTexts() {
  return {QStringLiteral("a\nb"), QStringLiteral("a\r\nb"), QStringLiteral("a\tb"),
          QStringLiteral("a") + QChar(0x1B) + QStringLiteral("b"), QStringLiteral("a") + QChar(0x7F)};
}

TEST(DxfControlCharacters, RecordRefusesThemAndKeepsTheValue) {
  for (bool binary : {false, true}) {
    OdDxf::Format f;
    f.binary = binary;
    OdDxf::Record r = OdDxf::Record::make(f, "LINE");
    const int i = r.append(1000);
    ASSERT_TRUE(r.setString(i, QStringLiteral("kept")));
    for (const QString& text : controlTexts()) {
      EXPECT_FALSE(r.setString(i, text)) << binary << " " << text.toStdString();
      EXPECT_EQ(r.str(i), QStringLiteral("kept"));
    }
    EXPECT_TRUE(OdDxf::hasControlCharacters(QStringLiteral("x\ty")));
    EXPECT_FALSE(OdDxf::hasControlCharacters(QStringLiteral("Grüße \u20ac ~")));
  }
}

// Extended data of another application with such a text: the save is
// refused naming the record, the group code and the text (control
// characters shown as ^J, ^I, ...), and what the drawing keeps is unchanged,
// so the next save after a fix holds the fix and nothing else.
TEST(DxfControlCharacters, SaveRefusesThemInExtendedData) {
  odDbInitialize();
  OdDbDatabasePtr db = load(kDrawing);
  ASSERT_TRUE(db);
  const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(quint64(0x2A)));
  auto setText = [&](const QString& text) {
    OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
    OdResBufPtr x = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ACAD"));
    x->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString(text)).get());
    obj->setXData(x.get());
  };
  const struct {
    QString text;
    const char* shown;
  } cases[] = {{QStringLiteral("one\ntwo"), "one^Jtwo"}, {QStringLiteral("one\ttwo"), "one^Itwo"}};
  for (const auto& c : cases) {
    setText(c.text);
    QString error;
    EXPECT_TRUE(OdDxf::writeDrawing(db.get(), &error).isEmpty());
    EXPECT_TRUE(error.startsWith(QStringLiteral("LINE 2A: group code 1000 cannot hold \"") + QLatin1String(c.shown) + '"'))
        << error.toStdString();
  }
  setText(QStringLiteral("one two"));
  const QByteArray out = save(db.get());
  QByteArray expected = kDrawing;
  expected.replace(" 31\n0.0\n", " 31\n0.0\n1001\nACAD\n1000\none two\n");
  EXPECT_EQ(out, expected);
}

// A hyperlink with a tab in a file: the drawing loads with a warning, the
// entity shows no hyperlink, and the file's tags are written back as read.
TEST(DxfControlCharacters, HyperlinkWithATabInAFileIsKeptAsRead) {
  odDbInitialize();
  QByteArray bytes = kDrawing;
  bytes.replace(" 31\n0.0\n", " 31\n0.0\n1001\nPE_URL\n1000\nhttps://example.org/\tx\n");
  QStringList warnings;
  OdDbDatabasePtr db = load(bytes, &warnings);
  ASSERT_TRUE(db);
  ASSERT_EQ(warnings.size(), 1);
  EXPECT_TRUE(warnings[0].contains(QStringLiteral("LINE (handle 2A)"))) << warnings[0].toStdString();
  EXPECT_TRUE(warnings[0].contains(QStringLiteral("hyperlink not read"))) << warnings[0].toStdString();
  const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(quint64(0x2A)));
  {
    OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
    static_cast<OdDbLine*>(obj.get())->setStartPoint(OdGePoint3d(5, 2, 0));
  }
  QByteArray expected = bytes;
  expected.replace(" 10\n1.0\n", " 10\n5.0\n");
  EXPECT_EQ(save(db.get()), expected);
}

}  // namespace
