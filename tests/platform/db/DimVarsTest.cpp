// The table of dimension variables and the style record built on it.
#include "DbDatabase.h"
#include "DbPlainClasses.h"

#include <gtest/gtest.h>

#include <QSet>
#include <QtMath>

namespace dv = OdDbDimVar;

namespace {

// Every row: a unique group code, a default its own limit accepts, a name
// found by its upper-case form.
TEST(DimVars, EveryRowIsConsistent) {
  QSet<int> codes;
  for (int k = 0; k < dv::kCount; ++k) {
    const dv::Info& i = dv::info(dv::Id(k));
    SCOPED_TRACE(i.name);
    EXPECT_EQ(i.id, k);
    if (i.code) {
      EXPECT_FALSE(codes.contains(i.code)) << "code " << i.code;
      codes.insert(i.code);
    }
    OdString why;
    EXPECT_TRUE(dv::check(i.id, i.defaultValue(), &why)) << why.qstring().toStdString();
    ASSERT_NE(dv::find(i.upperName()), nullptr);
    EXPECT_EQ(dv::find(i.upperName())->id, i.id);
    EXPECT_NE(i.row, nullptr);
  }
  EXPECT_EQ(dv::kCount, 78);
}

// A new style has the imperial defaults of the "Standard" style.
TEST(DimVars, NewStyleHasTheStandardDefaults) {
  odDbInitialize();
  OdDbDimStyleTableRecordPtr s = OdDbDimStyleTableRecord::createObject();
  EXPECT_EQ(s->dimscale(), 1.0);
  EXPECT_EQ(s->dimasz(), 0.18);
  EXPECT_EQ(s->dimtxt(), 0.18);
  EXPECT_EQ(s->dimexo(), 0.0625);
  EXPECT_EQ(s->dimgap(), 0.09);
  EXPECT_EQ(s->dimaltf(), 25.4);
  EXPECT_EQ(s->dimdec(), 4);
  EXPECT_EQ(s->dimaltd(), 2);
  EXPECT_EQ(s->dimlunit(), 2);
  EXPECT_EQ(s->dimatfit(), 3);
  EXPECT_EQ(s->dimtolj(), 1);
  EXPECT_EQ(s->dimdsep(), L'.');
  EXPECT_TRUE(s->dimtih());
  EXPECT_TRUE(s->dimtoh());
  EXPECT_FALSE(s->dimalt());
  EXPECT_EQ(s->dimlwd(), OdDb::kLnWtByBlock);
  EXPECT_TRUE(s->dimclrd().isByBlock());
  EXPECT_TRUE(s->dimtxsty().isNull());
  EXPECT_NEAR(s->dimjogang(), qDegreesToRadians(45.0), 1e-15);
}

// A value outside a variable's limit is refused with a sentence naming the
// variable, and the style keeps its value.
TEST(DimVars, SettersRefuseValuesOutsideTheLimit) {
  odDbInitialize();
  OdDbDimStyleTableRecordPtr s = OdDbDimStyleTableRecord::createObject();
  const struct {
    dv::Id id;
    dv::Value value;
    const char* message;
  } cases[] = {
      {dv::k_dimtxt, 0.0, "DIMTXT must be greater than 0"},
      {dv::k_dimasz, -0.5, "DIMASZ must not be negative"},
      {dv::k_dimdec, 9, "DIMDEC must be from 0 to 8"},
      {dv::k_dimlfac, 0.0, "DIMLFAC must not be 0"},
      {dv::k_dimjogang, qDegreesToRadians(2.0), "DIMJOGANG must be from"},
      {dv::k_dimlwd, 7, "DIMLWD must be a line weight"},
      {dv::k_dimscale, std::nan(""), "DIMSCALE must be a finite number"},
      {dv::k_dimtxt, OdString("3"), "DIMTXT does not take a value of this kind"},
  };
  for (const auto& c : cases) {
    const dv::Value was = s->dimVar(c.id);
    try {
      s->setDimVar(c.id, c.value);
      ADD_FAILURE() << c.message << ": not refused";
    } catch (const OdError& e) {
      EXPECT_TRUE(e.description().qstring().contains(QLatin1String(c.message))) << e.description().qstring().toStdString();
    }
    EXPECT_TRUE(s->dimVar(c.id) == was) << c.message;
  }
  // Values at the limits are taken.
  s->setDimasz(0);
  s->setDimdec(8);
  s->setDimjogang(qDegreesToRadians(90.0));
  EXPECT_EQ(s->dimasz(), 0.0);
  EXPECT_EQ(s->dimdec(), 8);
}

// Overrides kept in the ACAD extended data leave the application's other
// items where they were, and removing the last one removes the list.
TEST(DimVars, OverridesKeepTheApplicationsOtherData) {
  odDbInitialize();
  OdDbLinePtr l = OdDbLine::createObject();  // any object carries extended data
  OdResBufPtr acad = OdResBuf::newRb(OdResBuf::kDxfRegAppName, OdString("ACAD"));
  acad->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("other")).get());
  l->setXData(acad.get());
  OdDbDimStyleOverrides::set(l.get(), dv::k_dimscale, 2.0);
  OdDbDimStyleOverrides::set(l.get(), dv::k_dimscale, 3.0);  // replaced, not added
  OdDbDimStyleOverrides::set(l.get(), dv::k_dimclrd, OdCmColor::fromIndex(3));
  const auto got = OdDbDimStyleOverrides::get(l.get());
  ASSERT_EQ(got.size(), 2u);
  EXPECT_EQ(std::get<double>(got[0].value), 3.0);
  EXPECT_EQ(std::get<OdCmColor>(got[1].value).colorIndex(), 3);
  OdDbDimStyleOverrides::remove(l.get(), dv::kCount);
  EXPECT_TRUE(OdDbDimStyleOverrides::get(l.get()).empty());
  OdResBufPtr left = l->xData("ACAD");
  ASSERT_TRUE(left);
  ASSERT_TRUE(left->next());
  EXPECT_EQ(left->next()->getString(), OdString("other"));
  EXPECT_EQ(left->next()->next(), nullptr);
}

}  // namespace
