// Every fixed row of the line, circle, polyline, point, ray and
// construction-line providers: category, name, editor type and identifier,
// read-only test, setter, icons and visibility, in the order of the static
// list; the list's filters; and the refusals every row shares.
#include "ZqTestSupport.h"
#include "CZqPropertyType.h"
#include <set>
#include <span>

namespace {

using T = CZqPropertyType;

enum ReadOnly { kEditable, kAlways, kOwnTest, kNone };

struct RowCase {
  const char* category;
  const char* name;
  int type;
  const char* typeId;
  ReadOnly readOnly;
  bool hasSetter;
  const char* icon;  // empty: no icons
  unsigned visibility;
};

const RowCase kLineRows[] = {
    {"General", "Thickness", 0, "", kEditable, true, "General_Thickness", 3 | 4},
    {"Geometry", "Start X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_StartX", 3},
    {"Geometry", "Start Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_StartY", 3},
    {"Geometry", "Start Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_StartZ", 3},
    {"Geometry", "End X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_EndX", 3},
    {"Geometry", "End Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_EndY", 3},
    {"Geometry", "End Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_EndZ", 3},
    {"Geometry", "Delta X", 2, T::kCoordinateXGUID, kAlways, false, "Geometry_DeltaX", 3},
    {"Geometry", "Delta Y", 2, T::kCoordinateYGUID, kAlways, false, "Geometry_DeltaY", 3},
    {"Geometry", "Delta Z", 2, T::kCoordinateZGUID, kAlways, false, "Geometry_DeltaZ", 3},
    {"Geometry", "Length", 0, "", kAlways, false, "Geometry_Length", 3},
    {"Geometry", "Angle", 2, T::kOrientGUID, kAlways, false, "Geometry_Angle", 3},
};

const RowCase kCircleRows[] = {
    {"General", "Thickness", 0, "", kEditable, true, "General_Thickness", 3 | 4},
    {"Geometry", "Center X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_CenterX", 3},
    {"Geometry", "Center Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_CenterY", 3},
    {"Geometry", "Center Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_CenterZ", 3},
    {"Geometry", "Radius", 2, "", kEditable, true, "Geometry_Radius", 3},
    {"Geometry", "Diameter", 2, "", kEditable, true, "Geometry_Diameter", 3},
    {"Geometry", "Circumference", 2, "", kEditable, true, "Geometry_Circumference", 3},
    {"Geometry", "Area", 2, "", kEditable, true, "Geometry_Area", 3},
    {"Geometry", "Normal X", 2, "", kAlways, false, "Geometry_NormalX", 3},
    {"Geometry", "Normal Y", 2, "", kAlways, false, "Geometry_NormalY", 3},
    {"Geometry", "Normal Z", 2, "", kAlways, false, "Geometry_NormalZ", 3},
};

// Visibility: 3 by default; 4 added; 8 flipped (the default has it clear).
const RowCase kPolylineRows[] = {
    {"General", "Thickness", 2, "", kEditable, true, "General_Thickness", 3 | 4},
    {"Geometry", "Vertex", 6, T::kVertexGUID, kEditable, true, "Geometry_Vertex", 3 | 8},
    {"Geometry", "Vertex X", 2, T::kVertexXGUID, kOwnTest, true, "Geometry_VertexX", 3 | 8},
    {"Geometry", "Vertex Y", 2, T::kVertexYGUID, kOwnTest, true, "Geometry_VertexY", 3 | 8},
    {"Geometry", "Start segment width", 0, T::kVertexStartWidthGUID, kEditable, true, "Geometry_StartSegmentWidth", 3 | 8},
    {"Geometry", "End segment width", 0, T::kVertexEndWidthGUID, kEditable, true, "Geometry_EndSegmentWidth", 3 | 8},
    {"Geometry", "Global width", 0, "", kEditable, true, "Geometry_GlobalWidth", 3},
    {"Geometry", "Elevation", 0, "", kEditable, true, "Geometry_Elevation", 3 | 8},
    {"Geometry", "Area", 0, "", kAlways, false, "Geometry_Area", 3},
    {"Geometry", "Length", 0, "", kAlways, false, "Geometry_Length", 3},
    {"Misc", "Closed", 0, "", kEditable, true, "Misc_Closed", 3},
    {"Misc", "LineStyleGen", 0, "", kEditable, true, "Misc_LTGeneration", 3 | 8},
    {"MATCHPROP", "MATCHPROP_Polyline", 0, "", kNone, true, "", 4},
};

const RowCase kPointRows[] = {
    {"General", "Thickness", 2, "", kEditable, true, "General_Thickness", 3 | 4},
    {"Geometry", "Position X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_CoordinateX", 3},
    {"Geometry", "Position Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_CoordinateY", 3},
    {"Geometry", "Position Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_CoordinateZ", 3},
};

const RowCase kRayRows[] = {
    {"Geometry", "Base point X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_BasePointX", 3},
    {"Geometry", "Base point Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_BasePointY", 3},
    {"Geometry", "Base point Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_BasePointZ", 3},
    {"Geometry", "Second point X", 2, T::kCoordinateXGUID, kEditable, true, "Geometry_SecondPointX", 3},
    {"Geometry", "Second point Y", 2, T::kCoordinateYGUID, kEditable, true, "Geometry_SecondPointY", 3},
    {"Geometry", "Second point Z", 2, T::kCoordinateZGUID, kEditable, true, "Geometry_SecondPointZ", 3},
    {"Geometry", "Direction vector X", 2, T::kCoordinateXGUID, kAlways, false, "Geometry_DirectionX", 3},
    {"Geometry", "Direction vector Y", 2, T::kCoordinateYGUID, kAlways, false, "Geometry_DirectionY", 3},
    {"Geometry", "Direction vector Z", 2, T::kCoordinateZGUID, kAlways, false, "Geometry_DirectionZ", 3},
};

struct ProviderCase {
  const char* name;
  OdRxClass* (*drawingClass)();
  std::span<const RowCase> rows;
  const char* displayName;
  const char* classKey;
  friend void PrintTo(const ProviderCase& c, std::ostream* os) { *os << c.name; }
};

class ProviderRowsTest : public ZqDrawingTest, public ::testing::WithParamInterface<ProviderCase> {
 protected:
  OdDbObjectId add(OdRxClass* cls) {
    OdDbEntityPtr entity = OdDbEntity::cast(cls->create().get());
    EXPECT_TRUE(entity);
    return addToModelSpace(entity.get());
  }
};

TEST_P(ProviderRowsTest, FixedRowsFollowTheGeneralRowsInTableOrder) {
  const ProviderCase& p = GetParam();
  OdDbObjectPtr obj = add(p.drawingClass()).openObject();
  auto rows = zqRowsOf(obj.get());
  ASSERT_TRUE(rows);
  const int general = int(CZqEntityPE::GeneralRows().size());
  ASSERT_EQ(rows->GetCount(), general + int(p.rows.size()));
  for (int i = 0; i < int(p.rows.size()); ++i) {
    const RowCase& c = p.rows[i];
    const CZqPropertyDescription* d = rows->GetAt(general + i);
    SCOPED_TRACE(c.name);
    EXPECT_EQ(d->GetCategory().qstring(), c.category);
    EXPECT_EQ(d->GetName().qstring(), c.name);
    EXPECT_EQ(d->GetType(), CZqCustomPropertyType(c.type, CZqString(c.typeId)));
    switch (c.readOnly) {
      case kEditable: EXPECT_EQ(d->GetIsReadOnlyMethod(), &CZqCustomPropertyPE::IsReadOnlyFalse); break;
      case kAlways: EXPECT_EQ(d->GetIsReadOnlyMethod(), &CZqCustomPropertyPE::IsReadOnlyTrue); break;
      case kOwnTest:
        EXPECT_NE(d->GetIsReadOnlyMethod(), nullptr);
        EXPECT_NE(d->GetIsReadOnlyMethod(), &CZqCustomPropertyPE::IsReadOnlyFalse);
        EXPECT_NE(d->GetIsReadOnlyMethod(), &CZqCustomPropertyPE::IsReadOnlyTrue);
        break;
      case kNone: EXPECT_EQ(d->GetIsReadOnlyMethod(), nullptr); break;
    }
    EXPECT_EQ(d->GetSetMethod() != nullptr, c.hasSetter);
    if (*c.icon) {
      const QString group = QString(c.icon).section('_', 0, 0);
      EXPECT_EQ(d->GetDarkIcon().qstring(), QString(":/%1/svg_icons/dark/%1/%2.svg").arg(group, c.icon));
      EXPECT_EQ(d->GetLightIcon().qstring(), QString(":/%1/svg_icons/light/%1/%2.svg").arg(group, c.icon));
    } else {
      EXPECT_TRUE(d->GetDarkIcon().isEmpty());
      EXPECT_TRUE(d->GetLightIcon().isEmpty());
    }
    EXPECT_EQ(d->GetVisibility(), c.visibility);
    EXPECT_FALSE(d->IsDynamic());
  }
  CZqPropertyBase* pe = zqProviderFor(obj.get());
  EXPECT_EQ(pe->GetClassName(obj.get()).qstring(), p.displayName);
  EXPECT_EQ(pe->GetClassKey().qstring(), p.classKey);
}

TEST_P(ProviderRowsTest, OwnRowsAreLeftOutForOtherClassesAndOnRequest) {
  const ProviderCase& p = GetParam();
  OdDbObjectPtr obj = add(p.drawingClass()).openObject();
  CZqPropertyBase* pe = zqProviderFor(obj.get());
  const int general = int(CZqEntityPE::GeneralRows().size()), all = general + int(p.rows.size());
  zqRowsOf(obj.get());  // the static list is built by now
  const OdRxClass* other = p.drawingClass() == OdDbLine::desc() ? OdDbCircle::desc() : OdDbLine::desc();
  struct Call { const OdRxClass* objectClass; const OdRxClass* providerClass; bool excludeOwn; int count; } calls[] = {
      {nullptr, nullptr, false, all},
      {p.drawingClass(), nullptr, false, all},
      {other, nullptr, false, general},
      {OdDbCurve::desc(), nullptr, false, general},
      {nullptr, nullptr, true, general},
      // Provider-class filter: the provider's own class, or one it does not derive from.
      {nullptr, pe->isA(), false, all},
      {nullptr, CZqEntityPE::desc(), false, general},
  };
  for (const Call& c : calls) {
    CZqPropertiesContainer* container = nullptr;
    pe->GetPropertyNames(obj.get(), container, c.objectClass, c.providerClass, c.excludeOwn);
    std::unique_ptr<CZqPropertiesContainer> owned(container);
    ASSERT_TRUE(container);
    EXPECT_EQ(container->GetCount(), c.count);
  }
}

// Every setter refuses, silently, an object of another class, an object open
// for read and (rows of doubles) a value of another kind; every getter
// answers nothing for another class's object or a closed one.
TEST_P(ProviderRowsTest, RowsRefuseOtherObjectsAndWrongKindsSilently) {
  const ProviderCase& p = GetParam();
  const OdDbObjectId id = add(p.drawingClass());
  const OdDbObjectId other = add(p.drawingClass() == OdDbPoint::desc() ? OdDbLine::desc() : OdDbPoint::desc());
  other.openObject(OdDb::kForWrite)->setModified(false);
  OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
  auto rows = zqRowsOf(obj.get());
  obj->setModified(false);
  OdDbObject* raw = obj.get();
  obj.release();
  // Rows that take something other than a double have tests of their own.
  const std::set<std::string> notDoubles{"Vertex", "Area", "Closed", "LineStyleGen", "MATCHPROP_Polyline"};
  for (const RowCase& c : p.rows) {
    SCOPED_TRACE(c.name);
    CZqPropertyDescription* d = zqRow(rows.get(), c.category, c.name);
    ASSERT_NE(d, nullptr);
    OdDbObjectPtr o = other.openObject(OdDb::kForWrite);
    if (std::string(c.category) != "MATCHPROP") {  // that getter answers any object's id
      EXPECT_TRUE(d->GetValue(raw, {}).IsEmpty());  // closed
      EXPECT_TRUE(d->GetValue(o.get(), {}).IsEmpty());
    }
    if (!c.hasSetter) {
      EXPECT_EQ(d->SetValue(id.openObject(OdDb::kForWrite).get(), CZqVariant(9.0, true), {}), -5001);
      continue;
    }
    EXPECT_EQ(d->SetValue(o.get(), CZqVariant(9.0, true), {}), -5001);
    EXPECT_EQ(d->SetValue(id.openObject(OdDb::kForRead).get(), CZqVariant(9.0, true), {}), -5001);
    if (notDoubles.count(c.name)) continue;
    for (const CZqVariant& wrong : {CZqVariant("9"), CZqVariant(int32_t(9)), CZqVariant()})
      EXPECT_EQ(d->SetValue(id.openObject(OdDb::kForWrite).get(), wrong, {}), -5001);
  }
  EXPECT_FALSE(id.openObject()->isModified());
  EXPECT_FALSE(other.openObject()->isModified());
  EXPECT_EQ(messageCount(), 0u);
}

INSTANTIATE_TEST_SUITE_P(Providers, ProviderRowsTest,
                         ::testing::Values(ProviderCase{"Line", &OdDbLine::desc, kLineRows, "Line", ""},
                                           ProviderCase{"Circle", &OdDbCircle::desc, kCircleRows, "Circle", ""},
                                           ProviderCase{"Polyline", &OdDbPolyline::desc, kPolylineRows, "PolyLine", ""},
                                           ProviderCase{"Point", &OdDbPoint::desc, kPointRows, "Point", ""},
                                           ProviderCase{"Ray", &OdDbRay::desc, kRayRows, "Ray", ""},
                                           ProviderCase{"Xline", &OdDbXline::desc, kRayRows, "ILine", "ILINE"}),
                         [](const auto& info) { return std::string(info.param.name); });

}  // namespace
