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
  const char* type = nullptr;  // DXF type of the object edited (the first such); the first of model space when null
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
  OdDbObjectId target = all.front();
  if (GetParam().type) {
    // Drawings before R12 have no handles of their own: the object is found by kind.
    target = OdDbObjectId();
    for (const OdDbObjectId& id : all)
      if (target.isNull() && id.openObject()->isA()->dxfName() == OdString(GetParam().type)) target = id;
  }
  ASSERT_FALSE(target.isNull());
  service.SetSelection({target});
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
              "A hyperlink needs a drawing saved as R12 or later; this drawing is AC1003."},
        // The inspection data of a dimension is extended data too.
        Found{"DimensionInspectionBeforeR12", "libredwg__test__test-data__r2.6__dim.dxf", "Inspection rate", "5",
              "Inspection data needs a drawing saved as R12 or later; this drawing is AC1003.", "DIMENSION"},
        // So are its overrides of its style's variables.
        Found{"DimensionOverrideBeforeR12", "libredwg__test__test-data__r2.6__dim.dxf", "Arrow size", "0.5",
              "Dimension overrides need a drawing saved as R12 or later; this drawing is AC1003.", "DIMENSION"}),
    [](const auto& info) { return std::string(info.param.name); });

}  // namespace

namespace {

// Text modes out of their range, as fuzz_dxf_binary first made one (a
// vertical mode of 21582): converting such a number to the mode's type was
// undefined behaviour, reported by the sanitizers, before the range check
// could refuse it. Each drawing loads with a warning naming the line, or is
// refused with it.
struct BadMode {
  const char* name;
  QByteArray entity;
};

void PrintTo(const BadMode& b, std::ostream* os) { *os << b.name; }

class FoundModes : public ::testing::TestWithParam<BadMode> {};

TEST_P(FoundModes, ReportedWithTheirLine) {
  zqfuzz::startPlatform(false);
  const QByteArray bytes = "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\nAC1015\n  0\nENDSEC\n  0\nSECTION\n  2\nENTITIES\n" +
                           GetParam().entity + "  0\nENDSEC\n  0\nEOF\n";
  QString error;
  QStringList warnings;
  OdDbDatabasePtr db = OdDxf::readDrawing(bytes, error, &warnings);
  if (!db) {
    EXPECT_TRUE(zqfuzz::namesAPlace(error)) << error.toStdString();
  } else {
    ASSERT_FALSE(warnings.isEmpty());
    EXPECT_TRUE(zqfuzz::namesAPlace(warnings.front())) << warnings.front().toStdString();
  }
}

const QByteArray kText = "  0\nTEXT\n  5\n2A\n100\nAcDbEntity\n  8\n0\n100\nAcDbText\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 40\n1.0\n  1\nx\n";
const QByteArray kMText = "  0\nMTEXT\n  5\n2B\n100\nAcDbEntity\n  8\n0\n100\nAcDbMText\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 40\n1.0\n  1\nx\n";

INSTANTIATE_TEST_SUITE_P(Inputs, FoundModes,
                         ::testing::Values(BadMode{"TextVertical", kText + "100\nAcDbText\n 73\n21582\n"},
                                           BadMode{"TextHorizontal", kText + " 72\n-30000\n100\nAcDbText\n"},
                                           BadMode{"MTextAttachment", kMText + " 71\n999\n"},
                                           BadMode{"MTextFlow", kMText + " 72\n77\n"},
                                           BadMode{"MTextSpacing", kMText + " 73\n9\n"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
