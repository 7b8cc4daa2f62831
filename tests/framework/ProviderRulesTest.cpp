// The rules every provider follows: class fallback, the static-list steps of
// GetPropertyNames, the selection totals, and a walk over every row of every
// provider the module attached.
#include "ZqTestSupport.h"
#include "CZqPropertyType.h"
#include <QRegularExpression>
#include <functional>
#include <typeinfo>
#include <set>

namespace {

class ProviderRulesTest : public ZqDrawingTest {};

TEST_F(ProviderRulesTest, ClassesWithoutARowFallBackToTheirNearestAttachedParent) {
  struct Case {
    OdRxClass* cls;
    const char* provider;
    const char* info;
  };
  const Case cases[] = {
      // A wipeout has no row: the raster image's provider serves it.
      {OdDbWipeout::desc(), "CZqRasterImagePE", "CZqPrintObjectInfoPE"},
      // Its own provider, but its information provider is never attached.
      {OdDbRasterImage::desc(), "CZqRasterImagePE", "CZqPrintObjectInfoPE"},
      // Its own provider, but no information provider: the generic one prints.
      {OdDbArcAlignedText::desc(), "CZqArcAlignedTextPE", "CZqPrintObjectInfoPE"},
      {OdDbLine::desc(), "CZqLinePE", ""},
  };
  for (const Case& c : cases) {
    OdDbEntityPtr e = OdDbEntity::cast(c.cls->create().get());
    ASSERT_TRUE(e) << c.cls->name().toStdString();
    CZqPropertyBase* pe = zqProviderFor(e.get());
    ASSERT_NE(pe, nullptr);
    EXPECT_EQ(pe->isA()->name().toStdString(), c.provider) << c.cls->name().toStdString();
    CZqPrintObjectInfoPE* info = zqInfoFor(e.get());
    ASSERT_NE(info, nullptr);
    if (*c.info) {
      EXPECT_EQ(info->isA()->name().toStdString(), c.info);
    }
  }
  // The generic information provider prints only the general lines.
  OdDbEntityPtr wipeout = OdDbEntity::cast(OdDbWipeout::desc()->create().get());
  const OdDbObjectId id = addToModelSpace(wipeout.get());
  wipeout.release();
  const auto lines = info(id);
  EXPECT_EQ(labelsOf(lines), (std::vector<QString>{"Class name", "Handle", "Layer", "Space", "Color", "Linetype"}));
  EXPECT_EQ(lines[0].text, "WIPEOUT");
  EXPECT_EQ(lines[3].text, "Model space");
}

// A class derived from OdDbLine that the module knows nothing about.
class TestDerivedLine : public OdDbLine {
 public:
  static OdRxClass* desc() {
    static OdRxClass* cls = newOdRxClass(L"TestDerivedLine", OdDbLine::desc(),
                                         +[]() -> OdRxObjectPtr { return OdRxObjectPtr(new TestDerivedLine()); });
    return cls;
  }
  OdRxClass* isA() const override { return desc(); }
};

TEST_F(ProviderRulesTest, ADerivedLineFindsTheLineProvider) {
  OdRxObjectPtr obj = TestDerivedLine::desc()->create();
  CZqPropertyBase* pe = zqProviderFor(static_cast<OdDbObject*>(obj.get()));
  ASSERT_NE(pe, nullptr);
  EXPECT_EQ(pe->isA(), odrxClassDictionary().getAt("CZqLinePE"));
}

TEST_F(ProviderRulesTest, GroupsAreNotFoundThroughThePropertyProtocol) {
  OdRxObjectPtr group = OdDbGroup::desc()->create();
  EXPECT_EQ(zqProviderFor(static_cast<OdDbObject*>(group.get())), nullptr);
}

// Counts how many of the line's own rows a call adds.
int ownRows(CZqPropertyBase* pe, const OdDbObject* obj, const OdRxClass* objectClass, const OdRxClass* providerClass,
            bool excludeOwn) {
  CZqPropertiesContainer* c = nullptr;
  pe->GetPropertyNames(obj, c, objectClass, providerClass, excludeOwn);
  std::unique_ptr<CZqPropertiesContainer> owned(c);
  if (!c) return -1;
  return c->GetCount() - int(CZqEntityPE::GeneralRows().size());
}

// The static list is built on the first call whatever it asks for: that
// call adds the fixed rows even with excludeOwn, or builds them without
// adding any for another class; later calls honour excludeOwn. (The
// filters of later calls are tested per provider with the curves.)
TEST_F(ProviderRulesTest, FirstCallBuildsTheStaticListWhateverItAsksFor) {
  const struct { const OdRxClass* objectClass; int added; } firstCalls[] = {{nullptr, 12}, {OdDbCircle::desc(), 0}};
  for (const auto& first : firstCalls) {
    zqUnloadModule();  // a fresh module has empty static lists
    zqEnsureModuleLoaded();
    OdDbObjectPtr line = addLine({0, 0, 0}, {1, 0, 0}).openObject();
    CZqPropertyBase* pe = zqProviderFor(line.get());
    ASSERT_NE(pe, nullptr);
    EXPECT_EQ(ownRows(pe, line.get(), first.objectClass, nullptr, true), first.added);
    EXPECT_EQ(ownRows(pe, line.get(), nullptr, nullptr, true), 0);
    EXPECT_EQ(ownRows(pe, line.get(), nullptr, nullptr, false), 12);
  }
}

TEST_F(ProviderRulesTest, TotalLengthOnlyForASelectionOfTwoOrMore) {
  const OdDbObjectId a = addLine({0, 0, 0}, {3, 4, 0});
  const OdDbObjectId b = addLine({1, 1, 1}, {1, 1, 3});
  CZqPropertiesWindowService service(db.get());
  auto hasTotal = [&] {
    OdDbObjectPtr obj = a.openObject();
    auto rows = zqRowsOf(obj.get());
    return zqRow(rows.get(), "Geometry", "Total Length") != nullptr;
  };
  service.SetSelection({a});
  EXPECT_FALSE(hasTotal());
  service.SetSelection({a, b});
  ASSERT_TRUE(hasTotal());
  EXPECT_DOUBLE_EQ(get(a, "Geometry", "Total Length").GetDouble(), 5.0 + 2.0);
  {
    OdDbObjectPtr obj = a.openObject();
    auto rows = zqRowsOf(obj.get());
    CZqPropertyDescription* d = zqRow(rows.get(), "Geometry", "Total Length");
    EXPECT_TRUE(d->IsDynamic());
    EXPECT_TRUE(d->IsReadOnly(obj.get()));
    EXPECT_EQ(d->SetValue(obj.get(), CZqVariant(1.0, true), {}), 0);  // the totals answer 0, not 5100
    EXPECT_EQ(d->GetType(), CZqCustomPropertyType(0, CZqPropertyType::accumulatedLengthGUID));
    EXPECT_EQ(d->GetDarkIcon().qstring(), ":/Geometry/svg_icons/dark/Geometry/Geometry_Length.svg");
    // Lines have no area: no Total Area row.
    EXPECT_EQ(zqRow(rows.get(), "Geometry", "Total Area"), nullptr);
  }
  // Without a gate there is no selection to total.
  CZqVELOXQTGate* gate = SetZqVELOXQTGate(nullptr);
  EXPECT_FALSE(hasTotal());
  SetZqVELOXQTGate(gate);
}

// A total adds up the selected objects of the classes it is for, each
// object once: a circle adds nothing to a total length, a line nothing to a
// total area, and an object the selection names twice counts once.
TEST_F(ProviderRulesTest, TotalsCountEachObjectOfTheirClassesOnce) {
  const OdDbObjectId a = addLine({0, 0, 0}, {3, 4, 0});
  const OdDbObjectId b = addLine({0, 0, 0}, {0, 0, 2});
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setRadius(1);
  const OdDbObjectId c = addToModelSpace(circle.get());
  circle.release();
  OdDbPolylinePtr square = OdDbPolyline::createObject();
  const OdGePoint2d corners[] = {{0, 0}, {2, 0}, {2, 2}, {0, 2}};
  for (unsigned i = 0; i < 4; ++i) square->addVertexAt(i, corners[i]);
  square->setClosed(true);
  const OdDbObjectId p = addToModelSpace(square.get());
  square.release();
  CZqPropertiesWindowService service(db.get());
  const struct {
    OdDbObjectIdArray selection;
    OdDbObjectId shownOn;
    const char* total;
    double expected;
  } cases[] = {
      {{a, c, b}, a, "Total Length", 5 + 2},
      {{a, a, b}, a, "Total Length", 5 + 2},
      {{a, p, a}, p, "Total Length", 5 + 8},
      {{c, a, p}, c, "Total Area", OdaPI + 4},
      {{c, c, a}, c, "Total Area", OdaPI},
  };
  for (const auto& k : cases) {
    service.SetSelection(k.selection);
    EXPECT_NEAR(get(k.shownOn, "Geometry", k.total).GetDouble(), k.expected, 1e-12) << k.total << " " << k.expected;
  }
}

// Which classes show which total (for a selection of two; the totals are
// rows of the providers built on CZqEntityExPE), in the order the rows
// come, and what the "Total Area" row is.
TEST_F(ProviderRulesTest, TotalsShowForTheirClassesOnly) {
  CZqPropertiesWindowService service(db.get());
  OdRxClass* measurable = odrxClassDictionary().getAt("CZqEntityExPE");
  ASSERT_NE(measurable, nullptr);
  const struct { OdRxClass* cls; bool length, area; } cases[] = {
      {OdDbLine::desc(), true, false},       {OdDbPolyline::desc(), true, true},   {OdDb2dPolyline::desc(), true, true},
      {OdDb3dPolyline::desc(), true, true},  {OdDbArc::desc(), true, true},        {OdDbSpline::desc(), true, true},
      {OdDbCircle::desc(), false, true},     {OdDbRegion::desc(), false, true},    {OdDbHatch::desc(), false, true},
      {OdDbEllipse::desc(), false, true},    {OdDbPoint::desc(), false, false},    {OdDbRay::desc(), false, false},
      {OdDbXline::desc(), false, false},     {OdDbWipeout::desc(), false, false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.cls->name().toStdString());
    OdRxObjectPtr made = c.cls->create();
    const OdDbObjectId id = addToModelSpace(static_cast<OdDbEntity*>(made.get()));
    made.release();
    service.SetSelection({id, addLine({0, 0, 0}, {1, 0, 0})});
    OdDbObjectPtr obj = id.openObject();
    auto rows = zqRowsOf(obj.get());
    const CZqPropertyDescription* length = zqRow(rows.get(), "Geometry", "Total Length");
    const CZqPropertyDescription* area = zqRow(rows.get(), "Geometry", "Total Area");
    const bool ex = zqProviderFor(obj.get())->isA()->isDerivedFrom(measurable);
    EXPECT_EQ(length != nullptr, ex && c.length);
    EXPECT_EQ(area != nullptr, ex && c.area);
    if (length && area) {
      int at = 0;
      while (rows->GetAt(at) != length) ++at;
      EXPECT_EQ(rows->GetAt(at + 1), area);  // the area total right after the length total
    }
    if (!area) continue;
    EXPECT_TRUE(area->IsDynamic());
    EXPECT_TRUE(area->IsReadOnly(obj.get()));
    EXPECT_EQ(area->GetType(), CZqCustomPropertyType(0, CZqPropertyType::accumulatedAreaGUID));
    EXPECT_EQ(area->GetDarkIcon().qstring(), ":/Geometry/svg_icons/dark/Geometry/Geometry_Area.svg");
    EXPECT_EQ(area->GetLightIcon().qstring(), ":/Geometry/svg_icons/light/Geometry/Geometry_Area.svg");
    EXPECT_EQ(area->SetValue(obj.get(), CZqVariant(1.0, true), {}), 0);
  }
}

// The class lists decide what is counted as well as where a total shows:
// a selection of a line, a closed 2D polyline, a circle and an ellipse
// totals the lengths of the first two only, and the areas of the last three.
TEST_F(ProviderRulesTest, TotalsCountTheClassesOfTheirLists) {
  const OdDbObjectId line = addLine({0, 0, 0}, {3, 4, 0});
  OdDb2dPolylinePtr square = OdDb2dPolyline::createObject();
  const OdDbObjectId polyline = addToModelSpace(square.get());
  for (const OdGePoint3d& p : {OdGePoint3d(0, 0, 0), OdGePoint3d(2, 0, 0), OdGePoint3d(2, 2, 0), OdGePoint3d(0, 2, 0)}) {
    OdDb2dVertexPtr v = OdDb2dVertex::createObject();
    v->setPosition(p);
    square->appendVertex(v.get());
  }
  square->setClosed(true);
  square.release();
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setRadius(1);
  const OdDbObjectId c = addToModelSpace(circle.get());
  circle.release();
  OdDbEllipsePtr ellipse = OdDbEllipse::createObject();
  ellipse->set(OdGePoint3d(9, 9, 0), OdGeVector3d::kZAxis, OdGeVector3d(2, 0, 0), 0.5, 0, Oda2PI);
  const OdDbObjectId e = addToModelSpace(ellipse.get());
  ellipse.release();
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({line, polyline, c, e, line});
  EXPECT_NEAR(get(line, "Geometry", "Total Length").GetDouble(), 5 + 8, 1e-9);
  EXPECT_NEAR(get(c, "Geometry", "Total Area").GetDouble(), OdaPI + 4 + 2 * OdaPI, 1e-6);
}

// The rows of the provider table, as the module reads them.
struct TableRow {
  int row;
  OdRxClass* (*drawingClass)();
  const char* provider;
  const char* info;
};
const TableRow kTableRows[] = {
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition) \
  {Row, &DrawingClass::desc, #Provider, #Info},
#include "ZqProviders.def"
};

// Every provider class the table lists is registered under the parent the
// table gives it, and an object it serves finds the parent's rows first
// (the general rows lead every container).
TEST_F(ProviderRulesTest, ProviderClassesHangUnderTheirTableParents) {
  const struct { const char *provider, *parent; } classes[] = {
#define ZQ_CLASS(Provider, Parent, RegisterPosition) {#Provider, #Parent},
#define ZQ_BASE_CLASS(Provider, Parent, DrawingClass, RegisterPosition, UnregisterPosition) {#Provider, #Parent},
#include "ZqProviders.def"
  };
  for (const auto& c : classes) {
    OdRxClass* cls = odrxClassDictionary().getAt(OdString(c.provider));
    ASSERT_NE(cls, nullptr) << c.provider;
    ASSERT_NE(cls->myParent(), nullptr) << c.provider;
    EXPECT_EQ(cls->myParent()->name().toStdString(), c.parent) << c.provider;
  }
}

// An object of cls (or, for a class that cannot be made, of a registered
// class derived from it that the same provider serves), in the drawing:
// entities in model space, table records in their table.
OdDbObjectId objectServedBy(OdDbDatabase* db, OdRxClass* cls, const char* provider,
                            const std::function<OdDbObjectId(OdDbEntity*)>& addEntity) {
  std::vector<OdRxClass*> candidates{cls};
  for (int i = 1; i < kOdDbRegisteredClassCount; ++i)
    if (g_odDbRegistredDwgClasses[i] && g_odDbRegistredDwgClasses[i]->isDerivedFrom(cls))
      candidates.push_back(g_odDbRegistredDwgClasses[i]);
  for (OdRxClass* c : candidates) {
    if (!c->constructor()) continue;
    OdRxObjectPtr made = c->create();
    OdDbObjectId id;
    if (auto* entity = odrxCast<OdDbEntity>(made.get())) {
      id = addEntity(entity);
    } else if (auto* record = odrxCast<OdDbSymbolTableRecord>(made.get())) {
      // A new drawing has no view tables; the walk gives it empty ones.
      if (db->getViewTableId().isNull())
        db->setViewTableIdsInternal(db->addOdDbObject(OdDbViewTable::createObject().get()),
                                    db->addOdDbObject(OdDbViewportTable::createObject().get()));
      for (const OdDbObjectId& t : {db->getLayerTableId(), db->getLinetypeTableId(), db->getTextStyleTableId(),
                                    db->getDimStyleTableId(), db->getViewTableId(), db->getViewportTableId()}) {
        OdDbObjectPtr tableObject = t.openObject(OdDb::kForWrite);
        auto* table = odrxCast<OdDbSymbolTable>(tableObject.get());
        if (!table || !c->isDerivedFrom(table->recordClass())) continue;
        record->setName(OdString("Walked"));
        id = table->add(record);
      }
    } else if (auto* object = odrxCast<OdDbObject>(made.get()); object && !object->isKindOf(OdDbSymbolTable::desc())) {
      // Groups and styles: entries of a dictionary, which names them.
      if (db->getNamedObjectsDictionaryId().isNull())
        db->setNamedObjectsDictionaryIdInternal(db->addOdDbObject(OdDbDictionary::createObject().get()));
      OdDbObjectPtr d = db->getNamedObjectsDictionaryId().openObject(OdDb::kForWrite);
      id = db->addOdDbObject(object, d->objectId());
      static_cast<OdDbDictionary*>(d.get())->setAt(OdString(QStringLiteral("Walked") + c->name().qstring()), id);
    }
    made.release();
    if (id.isNull()) continue;
    OdDbObjectPtr obj = id.openObject();
    // Groups answer to a protocol of their own, which the palette asks too.
    CZqPropertyBase* pe = zqProviderFor(obj.get());
    if (!pe) pe = CZqPropertyPEClassFactory::providerFor(obj.get());
    // Style providers have no class descriptor of their own: their C++ type names them.
    if (pe && (pe->isA() ? pe->isA()->name().toStdString() == provider
                         : std::string(typeid(*pe).name()).find(provider) != std::string::npos))
      return id;
  }
  return OdDbObjectId();
}

// Every row of every provider in the provider table, records included,
// with its conditional rows shown (a selection of two, revision-cloud
// data): unique keys and names, known editor types, well-formed icons, a
// getter on every row and no setter on rows that are always read-only; and
// the provider and information provider the table names are the ones found.
TEST_F(ProviderRulesTest, EveryRowOfEveryProviderInTheTableIsWellFormed) {
  const QRegularExpression iconPath(R"(^:/(\w+)/svg_icons/(dark|light)/\1/\w+_\w+\.svg$)");
  // The dimension inspection rows take their icons from the Misc set, two
  // of them directly under its dark and light folders.
  const QRegularExpression inspectionIcon(R"(^:/Misc/svg_icons/(dark|light)/(Misc/)?Inspection\w+\.svg$)");
  const auto iconMatches = [&](const QString& path) {
    return iconPath.match(path).hasMatch() || inspectionIcon.match(path).hasMatch();
  };
  const std::set<int> kinds{CZqVariant::kVtEmpty, CZqVariant::kVtDouble, CZqVariant::kVtString, CZqVariant::kVtInt32,
                            CZqVariant::kVtColor, CZqVariant::kVtCollection, CZqVariant::kVtCollectionElement,
                            CZqVariant::kVtId};
  CZqPropertiesWindowService service(db.get());
  int walked = 0;
  for (const TableRow& t : kTableRows) {
    SCOPED_TRACE(std::string("row ") + std::to_string(t.row) + " " + t.provider);
    const OdDbObjectId id = objectServedBy(db.get(), t.drawingClass(), t.provider,
                                           [&](OdDbEntity* e) { return addToModelSpace(e); });
    if (id.isNull() && !t.drawingClass()->constructor()) {
      // An abstract class whose every kind has a provider of its own (the
      // dimension base): its rows are walked through the kinds.
      ++walked;
      continue;
    }
    ASSERT_FALSE(id.isNull()) << "no object of the row's class is served by its provider";
    {
      OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
      CLOUDLINE_COMMAND_DATA cloud;
      cloud.style = "Rectangular";
      cloud.arcRadius = 1;
      if (auto* e = odrxCast<OdDbEntity>(obj.get())) CZqCloudBase::WriteCloudData(e, cloud);
    }
    service.SetSelection({id, id});
    OdDbObjectPtr open = id.openObject();
    if (odrxCast<OdDbEntity>(open.get()) && std::string(t.info) != "ZQ_NO_INFO") {
      CZqPrintObjectInfoPE* info = zqInfoFor(open.get());
      ASSERT_NE(info, nullptr);
      // Information classes keep their base's class identity; their C++ type tells them apart.
      EXPECT_NE(std::string(typeid(*info).name()).find(t.info), std::string::npos) << typeid(*info).name();
    }
    auto rows = zqRowsOf(open.get());
    ASSERT_TRUE(rows);
    ++walked;
    std::set<QString> keys, names;
    for (int r = 0; r < rows->GetCount(); ++r) {
      const CZqPropertyDescription* d = rows->GetAt(r);
      const std::string where = d->GetCategoryKey().qstring().toStdString() + "/" + d->GetNameKey().qstring().toStdString();
      // Rows dimensions list twice on purpose: the ordinate's tolerance
      // feet/inch pair, and the angular kinds' zero suppression (their own,
      // after the common block's).
      const std::string provider = t.provider;
      const QString nameKey = d->GetNameKey().qstring();
      const bool listedTwice =
          (provider == "CZqOrdinateDimensionPE" && nameKey.startsWith("Tolerance suppress zero")) ||
          ((provider == "CZq2LineAngularDimensionPE" || provider == "CZq3PointAngularDimensionPE") &&
           (nameKey == "Suppress leading zeros" || nameKey == "Suppress trailing zeros"));
      EXPECT_TRUE(keys.insert(d->GetCategoryKey().qstring() + "/" + d->GetNameKey().qstring()).second || listedTwice) << where;
      EXPECT_TRUE(names.insert(d->GetCategory().qstring() + "/" + d->GetName().qstring()).second || listedTwice) << where;
      EXPECT_NE(d->GetGetMethod(), nullptr) << where;
      EXPECT_TRUE(kinds.count(d->GetType().GetType())) << where;
      const QString typeId = d->GetType().GetTypeId().qstring();
      EXPECT_TRUE(typeId.isEmpty() || CZqPropertyType::all().contains(typeId)) << where;
      if (d->GetCategoryKey().qstring() == "MATCHPROP") {
        EXPECT_EQ(d->GetVisibility(), 4u) << where;
        continue;
      }
      EXPECT_TRUE(iconMatches(d->GetDarkIcon().qstring())) << where << " " << d->GetDarkIcon().qstring().toStdString();
      EXPECT_TRUE(iconMatches(d->GetLightIcon().qstring())) << where;
      EXPECT_EQ(QString(d->GetDarkIcon().qstring()).replace("/dark/", "/light/"), d->GetLightIcon().qstring()) << where;
      EXPECT_TRUE(d->GetIcon().isEmpty()) << where;
      // Descriptions are empty but for the rows that open the annotation scales.
      EXPECT_TRUE(d->GetDescription().isEmpty() || d->GetDescription().qstring() == "Edit annotation scales") << where;
      if (d->GetIsReadOnlyMethod() == &CZqCustomPropertyPE::IsReadOnlyTrue) {
        EXPECT_EQ(d->GetSetMethod(), nullptr) << where;
      }
      // Getters answer for an object of their class without failing.
      (void)d->GetValue(open.get(), CZqVariant());
    }
  }
  EXPECT_EQ(walked, int(std::size(kTableRows)));
}

}  // namespace
