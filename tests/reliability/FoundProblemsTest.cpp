// Problems the fuzzers and the edit fuzz found, each as the edit that showed
// it: the edit is refused with its sentence when made, the drawing stays byte
// for byte as it was, and it still saves. (The inputs are kept in
// fuzz/corpus/ as regression-* files.)
#include "ZqFuzzSupport.h"
#include "DbPlainClasses.h"
#include "ZQCommandsBase.h"

#include <gtest/gtest.h>

namespace {

struct Found {
  const char* name;
  const char* sample;  // in the shared samples
  const char* row;
  const char* value;
  const char* refusal;
};

void PrintTo(const Found& f, std::ostream* os) { *os << f.name; }

class FoundProblems : public ::testing::TestWithParam<Found> {};

TEST_P(FoundProblems, RefusedWhenMadeAndTheDrawingStillSaves) {
  ASSERT_TRUE(zqfuzz::startPlatform(true));
  const QByteArray bytes = zqfuzz::readFile(QStringLiteral(ZQ_SAMPLES_DIR "/") + QLatin1String(GetParam().sample));
  if (bytes.isEmpty()) GTEST_SKIP() << "sample missing";
  QString error;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error);
  ASSERT_TRUE(db) << error.toStdString();
  const QByteArray before = OdDxf::writeDrawing(db.get());
  OdDbObjectPtr ms = db->getModelSpaceId().openObject();
  const OdDbObjectIdArray all = OdDbBlockTableRecord::cast(ms.get())->entityIds();
  ms.release();
  ASSERT_FALSE(all.isEmpty());

  CZqPropertiesWindowService service(db.get());
  service.SetSelection({all.front()});
  const std::vector<CZqPaletteRow> rows = service.Rows();
  const CZqPaletteRow* row = service.FindRow(rows, QLatin1String(GetParam().row));
  ASSERT_TRUE(row);
  CZqVariant value;
  ASSERT_TRUE(service.ParseValue(*row, QString::fromUtf8(GetParam().value), value));
  const std::vector<CZqEditResult> results = service.SetValue(row->categoryKey, row->nameKey, value);
  ASSERT_EQ(results.size(), 1u);
  EXPECT_EQ(results[0].code, kZqSetRefused);
  EXPECT_EQ(results[0].message.qstring().toStdString(), GetParam().refusal);

  QString writeError;
  const QByteArray after = OdDxf::writeDrawing(db.get(), &writeError);
  EXPECT_TRUE(writeError.isEmpty()) << writeError.toStdString();
  EXPECT_TRUE(after == before);
}

INSTANTIATE_TEST_SUITE_P(
    Inputs, FoundProblems,
    ::testing::Values(
        // A hyperlink is kept as extended data, which files before R12 cannot
        // hold: it was accepted, and the save then failed.
        Found{"HyperlinkBeforeR12", "libredwg__test__test-data__r2.6__dim.dxf", "Hyperlink", "http://example.com",
              "A hyperlink needs a drawing saved as R12 or later; this drawing is AC1003."}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace
