// Start-up and tear-down of the module, observed through the run-time
// system: what is registered, attached and removed, and in which order.
#include "ZqTestSupport.h"
#include <dlfcn.h>
#include <algorithm>
#include <set>

namespace {

// The attachment table: row, drawing class, provider, information provider.
struct TableRow {
  int row;
  const char* drawingClass;
  const char* provider;
  const char* info;  // nullptr: none
};
const TableRow kTable[] = {
    {1, "OdDb2LineAngularDimension", "CZq2LineAngularDimensionPE", "CZq2LineAngularDimensionInfo"},
    {2, "OdDb2dPolyline", "CZq2dPolylinePE", "CZq2dPolylineInfo"},
    {3, "OdDb3dPolyline", "CZq3dPolylinePE", "CZq3dPolylineInfo"},
    {4, "OdDb3dSolid", "CZq3dSolidPE", "CZq3dSolidInfo"},
    {5, "OdDb3PointAngularDimension", "CZq3PointAngularDimensionPE", "CZq3PointAngularDimensionInfo"},
    {6, "OdDbAlignedDimension", "CZqAlignedDimensionPE", "CZqAlignedDimensionInfo"},
    {7, "OdDbArcAlignedText", "CZqArcAlignedTextPE", nullptr},
    {8, "OdDbArcDimension", "CZqArcDimensionPE", "CZqArcDimensionInfo"},
    {9, "OdDbArc", "CZqArcPE", "CZqArcInfo"},
    {10, "OdDbAttributeDefinition", "CZqAttributeDefinitionPE", "CZqAttributeDefinitionInfo"},
    {11, "OdDbAttribute", "CZqAttributePE", "CZqBlockAttributeInfo"},
    {12, "OdDbBlockReference", "CZqBlockReferencePE", "CZqBlockReferenceInfo"},
    {13, "OdDbBody", "CZqBodyPE", "CZqBodyInfo"},
    {14, "OdDbCircle", "CZqCirclePE", "CZqCircleInfo"},
    {15, "OdDbDiametricDimension", "CZqDiametricDimensionPE", "CZqDiametricDimensionInfo"},
    {16, "OdDbDimension", "CZqDimensionPE", nullptr},
    {17, "OdDbEllipse", "CZqEllipsePE", "CZqEllipseInfo"},
    {18, "OdDbEntity", "CZqEntityPE", "CZqPrintObjectInfoPE"},
    {19, "OdDbExtrudedSurface", "CZqExtrudedSurfacePE", "CZqExtrudedSurfaceInfo"},
    {20, "OdDbViewportTableRecord", "CZqViewportTableRecordPE", nullptr},
    {21, "OdDbViewTableRecord", "CZqViewTableRecordPE", nullptr},
    {22, "OdDbFace", "CZqFacePE", "CZqFaceInfo"},
    {23, "OdDbFcf", "CZqFcfPE", "CZqFcfInfo"},
    {24, "OdDbHatch", "CZqHatchPE", "CZqHatchInfo"},
    {25, "OdDbLeader", "CZqLeaderPE", "CZqLeaderInfo"},
    {26, "OdDbLine", "CZqLinePE", "CZqLineInfo"},
    {27, "OdDbMInsertBlock", "CZqMInsertBlockPE", nullptr},
    {28, "OdDbMline", "CZqMlinePE", "CZqMlineInfo"},
    {29, "OdDbMText", "CZqMTextPE", "CZqMTextInfo"},
    {30, "OdDbOle2Frame", "CZqOle2FramePE", "CZqOle2FrameInfo"},
    {31, "OdDbOrdinateDimension", "CZqOrdinateDimensionPE", "CZqOrdinateDimensionInfo"},
    {32, "OdDbSurface", "CZqSurfacePE", "CZqSurfaceInfo"},
    {33, "OdDbPlaneSurface", "CZqPlaneSurfacePE", "CZqPlaneSurfaceInfo"},
    {34, "OdDbLoftedSurface", "CZqLoftedSurfacePE", "CZqLoftedSurfaceInfo"},
    {35, "OdDbPoint", "CZqPointPE", "CZqPointInfo"},
    {36, "OdDbPolyFaceMesh", "CZqPolyFaceMeshPE", "CZqPolyFaceMeshInfo"},
    {37, "OdDbPolygonMesh", "CZqPolygonMeshPE", "CZqPolygonMeshInfo"},
    {38, "OdDbSubDMesh", "CZqSubDMeshPE", "CZqSubDMeshInfo"},
    {39, "OdDbPolyline", "CZqPolylinePE", "CZqPolylineInfo"},
    {40, "OdDbMPolygon", "CZqMPolygonPE", "CZqMPolygonInfo"},
    {41, "OdDbProxyEntity", "CZqProxyEntityPE", "CZqProxyEntityInfo"},
    {42, "OdDbRadialDimensionLarge", "CZqRadialDimensionLargePE", "CZqRadialDimensionLargeInfo"},
    {43, "OdDbRadialDimension", "CZqRadialDimensionPE", "CZqRadialDimensionInfo"},
    {44, "OdDbRasterImage", "CZqRasterImagePE", nullptr},
    {45, "OdDbPdfReference", "CZqPdfReferencePE", "CZqPdfReferenceInfo"},
    {46, "OdDbDgnReference", "CZqDgnReferencePE", "CZqDgnReferenceInfo"},
    {47, "OdDbRay", "CZqRayPE", "CZqRayInfo"},
    {48, "OdDbRegion", "CZqRegionPE", "CZqRegionInfo"},
    {49, "OdDbRotatedDimension", "CZqRotatedDimensionPE", "CZqRotatedDimensionInfo"},
    {50, "OdDbSection", "CZqSectionPE", "CZqSectionInfo"},
    {51, "OdDbShape", "CZqShapePE", "CZqShapeInfo"},
    {52, "OdDbSolid", "CZqSolidPE", "CZqSolidInfo"},
    {53, "OdDbSpline", "CZqSplinePE_Prop", "CZqSplineInfo"},
    {54, "OdDbTable", "CZqTablePE", "CZqTableInfo"},
    {55, "OdDbText", "CZqTextPE", "CZqTextInfo"},
    {56, "OdDbTrace", "CZqTracePE", "CZqTraceInfo"},
    {57, "OdDbVertex", "CZqVertexPE", "CZqVertexInfo"},
    {58, "OdDbViewport", "CZqViewportPE", "CZqViewportInfo"},
    {59, "OdDbXline", "CZqXlinePE", "CZqXlineInfo"},
    {60, "OdDbHelix", "CZqHelixPE", "CZqHelixInfo"},
    {61, "OdDbRevolvedSurface", "CZqRevolvedSurfacePE", "CZqRevolvedSurfaceInfo"},
    {62, "OdDbSweptSurface", "CZqSweptSurfacePE", "CZqSweptSurfaceInfo"},
    {63, "OdDbLight", "CZqLightPE", "CZqLightInfo"},
    {64, "OdDbMLeader", "CZqMLeaderPE", "CZqMLeaderInfo"},
    {65, "OdDbTextStyleTableRecord", "CZqTextStylePE", nullptr},
    {66, "OdDbTableStyle", "CZqTableStylePE", nullptr},
    {67, "OdDbDimStyleTableRecord", "CZqDimensionStylePE", nullptr},
    {68, "OdDbMlineStyle", "CZqRichLineStylePE", nullptr},
    {69, "OdDbLinetypeTableRecord", "CZqLineStylePE", nullptr},
    {70, "OdDbLayerTableRecord", "CZqLayerPE", nullptr},
};

// Registration order of the module's own provider classes.
const char* const kRegisterOrder[] = {
    "CZqEntityExPE", "CZqDimensionPE", "CZqSurfacePE", "CZqRasterImagePE", "CZqDimension1ArrowPE",
    "CZqDimension2ArrowPE", "CZq2dPolylinePE", "CZq2LineAngularDimensionPE", "CZq3dPolylinePE", "CZq3dSolidPE",
    "CZq3PointAngularDimensionPE", "CZqAlignedDimensionPE", "CZqArcAlignedTextPE", "CZqArcDimensionPE", "CZqArcPE",
    "CZqAttributeDefinitionPE", "CZqBlockReferencePE", "CZqBodyPE", "CZqCirclePE", "CZqDgnReferencePE",
    "CZqDiametricDimensionPE", "CZqEllipsePE", "CZqExtrudedSurfacePE", "CZqFacePE", "CZqFcfPE", "CZqGroupPE",
    "CZqHatchPE", "CZqHelixPE", "CZqLayerPE", "CZqLeaderPE", "CZqLightPE", "CZqLinePE", "CZqLoftedSurfacePE",
    "CZqMInsertBlockPE", "CZqMlinePE", "CZqMTextPE", "CZqOle2FramePE", "CZqOrdinateDimensionPE", "CZqPdfReferencePE",
    "CZqPlaneSurfacePE", "CZqPointPE", "CZqPolyFaceMeshPE", "CZqPolygonMeshPE", "CZqPolylinePE", "CZqMPolygonPE",
    "CZqProxyEntityPE", "CZqRadialDimensionLargePE", "CZqRadialDimensionPE", "CZqRayPE", "CZqRegionPE",
    "CZqRevolvedSurfacePE", "CZqRotatedDimensionPE", "CZqSectionPE", "CZqShapePE", "CZqSolidPE", "CZqSplinePE_Prop",
    "CZqSubDMeshPE", "CZqSweptSurfacePE", "CZqTablePE", "CZqTextPE", "CZqAttributePE", "CZqTracePE", "CZqVertexPE",
    "CZqViewportPE", "CZqViewportTableRecordPE", "CZqViewTableRecordPE", "CZqWipeoutPE", "CZqXlinePE", "CZqMLeaderPE"};
const std::set<std::string> kBases{"CZqEntityExPE", "CZqDimensionPE", "CZqSurfacePE",
                                   "CZqRasterImagePE", "CZqDimension1ArrowPE", "CZqDimension2ArrowPE"};
const char* const kBaseUnregisterOrder[] = {"CZqDimension1ArrowPE", "CZqDimension2ArrowPE", "CZqRasterImagePE",
                                            "CZqSurfacePE", "CZqDimensionPE", "CZqEntityExPE"};
const char* const kPrimitives[] = {"CZqBoxPE", "CZqCylinderPE", "CZqTorusPE", "CZqWedgePE", "CZqSweepPE",
                                   "CZqExtrusionPE", "CZqPyramidPE", "CZqSpherePE", "CZqRevolvePE", "CZqLoftPE"};

const TableRow& rowNo(int n) { return kTable[n - 1]; }

// What the module implements so far, read from the events of a start-up:
// the provider classes it registered and the drawing classes it attached.
struct Present {
  std::set<std::string> classes;
  std::set<std::string> propertyRows;  // drawing classes with a provider
  std::set<std::string> infoRows;      // drawing classes with an information provider
};

Present presentIn(const std::vector<std::string>& events) {
  Present p;
  for (const std::string& e : events) {
    if (e.rfind("class+ ", 0) == 0) p.classes.insert(e.substr(7));
    if (e.rfind("addX ", 0) == 0) {
      const std::string rest = e.substr(5);
      const std::string cls = rest.substr(0, rest.find(' '));
      const std::string protocol = rest.substr(rest.find(' ') + 1);
      (protocol == "CZqPropertyBase" ? p.propertyRows : p.infoRows).insert(cls);
    }
  }
  return p;
}

std::vector<std::string> expectedStartup(const Present& p, bool pdf) {
  std::vector<std::string> out{"class+ CZqPropertyBase", "class+ CZqCustomPropertyPE"};
  auto attached = [&](const TableRow& r) { return p.propertyRows.count(r.drawingClass) > 0; };
  for (int n = 1; n <= 64; ++n)
    if (attached(rowNo(n)) && (n != 45 || pdf)) out.push_back(std::string("addX ") + rowNo(n).drawingClass + " CZqPropertyBase");
  out.push_back("class+ CZqEntityPE");
  for (const char* c : kRegisterOrder)
    if (p.classes.count(c)) out.push_back(std::string("class+ ") + c);
  for (int n = 65; n <= 70; ++n)
    if (attached(rowNo(n))) out.push_back(std::string("addX ") + rowNo(n).drawingClass + " CZqPropertyBase");
  out.push_back("class+ CZqPrintObjectInfoPE");
  std::vector<int> infoOrder;
  for (int n = 1; n <= 64; ++n) {
    if (n == 45 || n == 46 || n == 64) continue;
    infoOrder.push_back(n);
    if (n == 43) infoOrder.insert(infoOrder.end(), {64, 45, 46});
  }
  for (int n : infoOrder) {
    const TableRow& r = rowNo(n);
    if (r.info && p.infoRows.count(r.drawingClass) && (n != 45 || pdf))
      out.push_back(std::string("addX ") + r.drawingClass + " CZqPrintObjectInfoPE");
  }
  if (p.classes.count("CZqGroupPE")) out.push_back("addX OdDbGroup CZqGroupPE");
  for (const char* c : kPrimitives)
    if (p.classes.count(c)) out.push_back(std::string("class+ ") + c);
  out.push_back("class+ CZqDrawingViewPE");
  out.push_back("cmd+ _-PROPERTIES");
  return out;
}

std::vector<std::string> expectedTeardown(const Present& p, bool pdf) {
  std::vector<std::string> out{"cmd- _-PROPERTIES"};
  std::vector<int> detach;
  for (int n = 1; n <= 64; ++n) {
    if (n == 64) continue;
    detach.push_back(n);
    if (n == 44) detach.push_back(64);
  }
  for (int n : detach)
    if (p.propertyRows.count(rowNo(n).drawingClass) && (n != 45 || pdf))
      out.push_back(std::string("delX ") + rowNo(n).drawingClass + " CZqPropertyBase");
  for (int n = 65; n <= 70; ++n)
    if (p.propertyRows.count(rowNo(n).drawingClass)) out.push_back(std::string("delX ") + rowNo(n).drawingClass + " CZqPropertyBase");
  if (p.classes.count("CZqGroupPE")) out.push_back("delX OdDbGroup CZqGroupPE");
  for (const char* c : kRegisterOrder)
    if (p.classes.count(c) && !kBases.count(c)) out.push_back(std::string("class- ") + c);
  for (const char* c : kBaseUnregisterOrder)
    if (p.classes.count(c)) out.push_back(std::string("class- ") + c);
  out.insert(out.end(), {"class- CZqEntityPE", "class- CZqCustomPropertyPE", "class- CZqPropertyBase"});
  // Information providers in start-up order, plus four classes that never had one.
  std::vector<std::string> infoClasses;
  std::vector<int> infoOrder;
  for (int n = 1; n <= 64; ++n) {
    if (n == 45 || n == 46 || n == 64) continue;
    infoOrder.push_back(n);
    if (n == 43) infoOrder.insert(infoOrder.end(), {64, 45, 46});
  }
  for (int n : infoOrder) {
    const TableRow& r = rowNo(n);
    if (r.info && p.infoRows.count(r.drawingClass) && (n != 45 || pdf)) infoClasses.push_back(r.drawingClass);
    if (n == 6) infoClasses.push_back("OdDbArcAlignedText");
    if (n == 15) infoClasses.push_back("OdDbDimension");
    if (n == 19) infoClasses.push_back("OdDbViewportTableRecord");
    if (n == 43) infoClasses.push_back("OdDbRasterImage");
  }
  for (const std::string& c : infoClasses) out.push_back("delX " + c + " CZqPrintObjectInfoPE");
  out.push_back("class- CZqPrintObjectInfoPE");
  for (const char* c : kPrimitives)
    if (p.classes.count(c)) out.push_back(std::string("class- ") + c);
  out.push_back("class- CZqDrawingViewPE");
  return out;
}

class LifecycleTest : public ::testing::TestWithParam<bool> {
 protected:
  void SetUp() override {
    zqEnsureModuleLoaded();
    zqUnloadModule();
    GetZqResources()->SetPdfUnderlaySupported(GetParam());
  }
  void TearDown() override {
    GetZqResources()->SetPdfUnderlaySupported(true);
    zqEnsureModuleLoaded();
  }
};

TEST_P(LifecycleTest, StartupAndTeardownFollowTheirOrders) {
  const bool pdf = GetParam();
  ZqRecordingObserver startup;
  ASSERT_TRUE(odrxDynamicLinker()->loadModule("ZQProperties")) << odrxDynamicLinker()->lastError().toStdString();
  const Present present = presentIn(startup.events);
  // The generic rows and the line are always there.
  ASSERT_TRUE(present.propertyRows.count("OdDbEntity") && present.propertyRows.count("OdDbLine"));
  ASSERT_TRUE(present.infoRows.count("OdDbEntity") && present.infoRows.count("OdDbLine"));
  EXPECT_EQ(startup.events, expectedStartup(present, pdf));
  if (!pdf) {
    EXPECT_FALSE(present.propertyRows.count("OdDbPdfReference") || present.infoRows.count("OdDbPdfReference"));
  }

  ZqRecordingObserver teardown;
  ASSERT_TRUE(odrxDynamicLinker()->unloadModule("ZQProperties"));
  EXPECT_EQ(teardown.events, expectedTeardown(present, pdf));
  // Nothing the module registered is left behind.
  for (const std::string& c : present.classes) EXPECT_FALSE(odrxClassDictionary().has(OdString(c))) << c;
  EXPECT_EQ(odedRegCmds()->lookupGlobalCmd("_-PROPERTIES"), nullptr);
  EXPECT_TRUE(OdDbLine::desc()->getX(CZqPropertyBase::desc() ? CZqPropertyBase::desc() : OdRxObject::desc()).isNull());
}

INSTANTIATE_TEST_SUITE_P(PdfCapability, LifecycleTest, ::testing::Values(true, false),
                         [](const auto& info) { return info.param ? "PdfOn" : "PdfOff"; });

TEST(ModuleTest, SecondInitRaisesAlreadyRegisteredAndSecondUninitNotRegistered) {
  zqEnsureModuleLoaded();
  OdRxModulePtr module = odrxDynamicLinker()->getModule("ZQProperties");
  ASSERT_TRUE(module);
  try {
    module->initApp();
    FAIL() << "second initApp did not raise";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 315);
  }
  module->uninitApp();
  try {
    module->uninitApp();
    FAIL() << "second uninitApp did not raise";
  } catch (const OdError& e) {
    EXPECT_EQ(e.code(), 255);
  }
  // The failed tear-down left nothing registered: a start-up succeeds again.
  module->initApp();
  EXPECT_TRUE(odrxClassDictionary().has("CZqLinePE"));
}

TEST(ModuleTest, EntryPointsAnswerTheApiVersionAndOneModuleObject) {
  const std::string path = std::string(ZQ_MODULE_DIR) + "/ZQProperties.so";
  void* h = dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
  ASSERT_NE(h, nullptr) << dlerror();
  using VersionFn = void (*)(int&, int&, int&, int&);
  using CreateFn = OdRxModule* (*)();
  auto version = reinterpret_cast<VersionFn>(dlsym(h, "odrxGetAPIVersion"));
  auto create = reinterpret_cast<CreateFn>(dlsym(h, "odrxCreateModuleObject"));
  ASSERT_TRUE(version && create);
  int v[4] = {-1, -1, -1, -1};
  version(v[0], v[1], v[2], v[3]);
  EXPECT_EQ(std::vector<int>(v, v + 4), (std::vector<int>{26, 8, 0, 54832}));
  OdRxModulePtr first(create());
  EXPECT_EQ(create(), first.get());
  EXPECT_TRUE(first->appName().qstring().endsWith("ZQProperties.so"));
  // The last reference destroys the module object before its library goes.
  first.release();
  dlclose(h);
}

TEST(ModuleTest, DynamicLinkerLoadsUnloadsAndReloads) {
  zqEnsureModuleLoaded();
  zqUnloadModule();
  EXPECT_FALSE(odrxDynamicLinker()->getModule("ZQProperties"));
  EXPECT_FALSE(odrxClassDictionary().has("CZqLinePE"));
  for (int round = 0; round < 2; ++round) {
    OdRxModulePtr m = odrxDynamicLinker()->loadModule("ZQProperties");
    ASSERT_TRUE(m);
    EXPECT_EQ(odrxDynamicLinker()->moduleApiVersion("ZQProperties"), (OdRxApiVersion{26, 8, 0, 54832}));
    EXPECT_TRUE(odrxClassDictionary().has("CZqLinePE"));
    EXPECT_EQ(odedRegCmds()->lookupCmd("-PROPERTIES"), odedRegCmds()->lookupGlobalCmd("_-PROPERTIES"));
    EXPECT_NE(odedRegCmds()->lookupGlobalCmd("_-PROPERTIES"), nullptr);
    m.release();
    ASSERT_TRUE(odrxDynamicLinker()->unloadModule("ZQProperties"));
  }
  EXPECT_FALSE(odrxDynamicLinker()->loadModule("NoSuchModule"));
  EXPECT_NE(odrxDynamicLinker()->lastError().qstring().indexOf("NoSuchModule"), -1);
  zqEnsureModuleLoaded();
}

}  // namespace
