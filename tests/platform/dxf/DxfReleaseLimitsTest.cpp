// Values a drawing's release has no group for are never dropped at save:
// the save is refused with a sentence naming the release, and a value the
// release does hold is saved as usual. The edits here go straight to the
// entity, past the palette's own checks, as a program using the platform
// would make them.
#include "DxfDatabaseSupport.h"

#include <functional>

using namespace dxfdb;

namespace {

struct ReleaseCase {
  const char* name;
  const char* acadver;  // nullptr: a drawing made in memory (written as R2000)
  std::function<void(OdDbEntity*)> edit;
  const char* refusal;  // nullptr: saved and read back
};

void PrintTo(const ReleaseCase& c, std::ostream* os) { *os << c.name; }

const QByteArray kLineOnly =
    "  0\nSECTION\n  2\nHEADER\n  9\n$ACADVER\n  1\n%1\n  0\nENDSEC\n"
    "  0\nSECTION\n  2\nENTITIES\n"
    "  0\nLINE\n  8\n0\n 10\n0.0\n 20\n0.0\n 30\n0.0\n 11\n1.0\n 21\n1.0\n 31\n0.0\n"
    "  0\nENDSEC\n  0\nEOF\n";

class DxfReleaseLimits : public ::testing::TestWithParam<ReleaseCase> {};

TEST_P(DxfReleaseLimits, ValueTheReleaseCannotHoldRefusesTheSave) {
  const ReleaseCase& c = GetParam();
  odDbInitialize();
  OdDbDatabasePtr db;
  OdDbObjectId id;
  if (c.acadver) {
    db = load(QString::fromLatin1(kLineOnly).arg(QLatin1String(c.acadver)).toLatin1());
    ASSERT_TRUE(db);
    id = firstOf(db.get(), OdDbLine::desc());
  } else {
    db = OdDbDatabase::createObject();
    auto line = OdDbLine::createObject();
    line->setDatabaseDefaults(db.get());
    line->setEndPoint(OdGePoint3d(1, 1, 0));
    OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
    id = static_cast<OdDbBlockTableRecord*>(ms.get())->appendOdDbEntity(line.get());
  }
  ASSERT_FALSE(id.isNull());
  {
    OdDbEntityPtr e = OdDbEntity::cast(id.openObject(OdDb::kForWrite).get());
    c.edit(e.get());
  }
  QString error;
  const QByteArray out = OdDxf::writeDrawing(db.get(), &error);
  if (c.refusal) {
    EXPECT_TRUE(out.isEmpty());
    EXPECT_TRUE(error.contains(QLatin1String(c.refusal))) << error.toStdString();
  } else {
    ASSERT_TRUE(error.isEmpty()) << error.toStdString();
    EXPECT_FALSE(out.isEmpty());
    EXPECT_TRUE(load(out));
  }
}

INSTANTIATE_TEST_SUITE_P(
    Releases, DxfReleaseLimits,
    ::testing::Values(
        ReleaseCase{"TransparencyInANewDrawing", nullptr,
                    [](OdDbEntity* e) { e->setTransparency(OdCmTransparency::fromPercent(40)); },
                    "Transparency needs a drawing saved as R2004 or later; this one is saved as R2000."},
        ReleaseCase{"TrueColourInANewDrawing", nullptr, [](OdDbEntity* e) { e->setColor(OdCmColor::fromRGB(10, 20, 30)); },
                    "A true colour needs a drawing saved as R2004 or later"},
        ReleaseCase{"ColourIndexInANewDrawing", nullptr, [](OdDbEntity* e) { e->setColorIndex(3); }, nullptr},
        ReleaseCase{"LineweightInANewDrawing", nullptr, [](OdDbEntity* e) { e->setLineWeight(OdDb::kLnWt050); }, nullptr},
        ReleaseCase{"TransparencyInR2000", "AC1015",
                    [](OdDbEntity* e) { e->setTransparency(OdCmTransparency::fromPercent(10)); },
                    "Transparency needs a drawing saved as R2004 or later; this one is saved as R2000."},
        ReleaseCase{"TransparencyInR2004", "AC1018",
                    [](OdDbEntity* e) { e->setTransparency(OdCmTransparency::fromPercent(10)); }, nullptr},
        ReleaseCase{"LineweightInR12", "AC1009", [](OdDbEntity* e) { e->setLineWeight(OdDb::kLnWt050); },
                    "Lineweight needs a drawing saved as R2000 or later; this one is saved as R12."},
        ReleaseCase{"LinetypeScaleInR12", "AC1009", [](OdDbEntity* e) { e->setLinetypeScale(2.5); },
                    "Linetype scale needs a drawing saved as R13 or later; this one is saved as R12."},
        ReleaseCase{"LinetypeScaleInR14", "AC1014", [](OdDbEntity* e) { e->setLinetypeScale(2.5); }, nullptr}),
    [](const ::testing::TestParamInfo<ReleaseCase>& i) { return std::string(i.param.name); });

}  // namespace
