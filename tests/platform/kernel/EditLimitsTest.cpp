// What the properties-window service and the general rows refuse before a
// value can be lost: values the drawing's release or plot-style mode cannot
// hold, numbers that are not finite or do not fit, edits of objects on
// locked layers; and the current vertex chosen through the Vertex row.
#include "ZqTestSupport.h"
#include "DbRelease.h"
#include <cmath>
#include <limits>

namespace {

class EditLimitsTest : public ZqDrawingTest {
 protected:
  // Sets a row through the service, as zqprops and "-PROPERTIES" do.
  CZqEditResult edit(const OdDbObjectId& id, const char* category, const char* name, const CZqVariant& value) {
    CZqPropertiesWindowService service(db.get());
    service.SetSelection({id});
    const auto results = service.SetValue(category, name, value);
    return results.empty() ? CZqEditResult() : results.front();
  }
  OdDbObjectId addPolyline(int vertices) {
    OdSmartPtr<OdDbPolyline> pl = OdDbPolyline::createObject();
    for (int i = 0; i < vertices; ++i) pl->addVertexAt(unsigned(i), OdGePoint2d(10.0 * i, i % 2));
    return addToModelSpace(pl.get());
  }
  OdDbObjectId lockedLayer() {
    OdSmartPtr<OdDbLayerTableRecord> layer = OdDbLayerTableRecord::createObject();
    layer->setName("Locked");
    layer->setIsLocked(true);
    OdDbObjectPtr table = db->getLayerTableId().openObject(OdDb::kForWrite);
    return static_cast<OdDbSymbolTable*>(table.get())->add(layer.get());
  }
};

TEST_F(EditLimitsTest, GeneralRowsRefuseWhatTheReleaseCannotHold) {
  struct Case {
    const char* acadver;
    const char* row;
    CZqVariant value;
    const char* needs;  // the release the refusal names; null when accepted
  } cases[] = {
      {"AC1009", "Lineweight", CZqVariant(int32_t(25)), "R2000"},
      {"AC1009", "Lineweight", CZqVariant(int32_t(OdDb::kLnWtByLayer)), nullptr},
      {"AC1014", "Lineweight", CZqVariant(int32_t(25)), "R2000"},
      {"AC1015", "Lineweight", CZqVariant(int32_t(25)), nullptr},
      {"AC1009", "Linetype scale", CZqVariant(2.0, false), "R13"},
      {"AC1009", "Linetype scale", CZqVariant(1.0, false), nullptr},
      {"AC1012", "Linetype scale", CZqVariant(2.0, false), nullptr},
      {"AC1009", "Transparency", CZqVariant("40"), "R2004"},
      {"AC1015", "Transparency", CZqVariant("40"), "R2004"},
      {"AC1015", "Transparency", CZqVariant("ByLayer"), nullptr},
      {"AC1018", "Transparency", CZqVariant("40"), nullptr},
      {"AC1015", "Color", CZqVariant(OdCmColor::fromRGB(1, 2, 3)), "R2004"},
      {"AC1015", "Color", CZqVariant(OdCmColor::fromIndex(5)), nullptr},
      {"AC1032", "Color", CZqVariant(OdCmColor::fromRGB(1, 2, 3)), nullptr},
      {"AC1009", "Hyperlink", CZqVariant("https://example.org"), nullptr},
  };
  for (const Case& c : cases) {
    db->setOriginalFileVersion(c.acadver);
    const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
    const CZqVariant before = get(id, "General", c.row);
    const CZqEditResult r = edit(id, "General", c.row, c.value);
    const QString label = QString("%1 %2").arg(c.acadver, c.row);
    if (!c.needs) {
      EXPECT_EQ(r.code, kZqSetApplied) << label.toStdString() << ": " << r.message.qstring().toStdString();
      continue;
    }
    EXPECT_EQ(r.code, kZqSetRefused) << label.toStdString();
    const QString expected = QString("needs a drawing saved as %1 or later; this drawing is %2.")
                                 .arg(c.needs, OdDb::releaseName(OdDb::releaseNumber(c.acadver)));
    EXPECT_TRUE(r.message.qstring().contains(expected)) << label.toStdString() << ": " << r.message.qstring().toStdString();
    EXPECT_EQ(get(id, "General", c.row), before) << label.toStdString();
  }
}

TEST_F(EditLimitsTest, PlotStylesFollowThePlotStyleMode) {
  db->setOriginalFileVersion("AC1015");
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  // Colour-dependent: only ByColor.
  EXPECT_EQ(get(id, "General", "Plot style").GetString().qstring(), "ByColor");
  EXPECT_EQ(edit(id, "General", "Plot style", CZqVariant("ByColor")).code, kZqSetApplied);
  CZqEditResult r = edit(id, "General", "Plot style", CZqVariant("Normal"));
  EXPECT_EQ(r.code, kZqSetRefused);
  EXPECT_TRUE(r.message.qstring().contains("plots by colour")) << r.message.qstring().toStdString();

  // Named plot styles: names the drawing has (its spelling kept), ByLayer.
  db->setPSTYLEMODE(false);
  db->setPlotStyleNames({OdString("Normal"), OdString("Heavy")});
  EXPECT_EQ(get(id, "General", "Plot style").GetString().qstring(), "ByLayer");
  EXPECT_EQ(edit(id, "General", "Plot style", CZqVariant("heavy")).code, kZqSetApplied);
  EXPECT_EQ(get(id, "General", "Plot style").GetString().qstring(), "Heavy");
  struct Refused { const char* value; const char* part; } refused[] = {
      {"ByColor", "named plot styles"}, {"Missing", "no plot style named \"Missing\""}, {"ByBlock", "ByBlock"}};
  for (const Refused& c : refused) {
    r = edit(id, "General", "Plot style", CZqVariant(c.value));
    EXPECT_EQ(r.code, kZqSetRefused) << c.value;
    EXPECT_TRUE(r.message.qstring().contains(c.part)) << r.message.qstring().toStdString();
    EXPECT_TRUE(r.message.qstring().contains("Normal, Heavy")) << r.message.qstring().toStdString();
    EXPECT_EQ(get(id, "General", "Plot style").GetString().qstring(), "Heavy") << c.value;
  }
  EXPECT_EQ(edit(id, "General", "Plot style", CZqVariant("ByLayer")).code, kZqSetApplied);
  EXPECT_TRUE(openAs<OdDbEntity>(id)->plotStyleName().isEmpty());

  // Before R2000 there are no plot styles to name.
  db->setOriginalFileVersion("AC1014");
  r = edit(id, "General", "Plot style", CZqVariant("Normal"));
  EXPECT_EQ(r.code, kZqSetRefused);
  EXPECT_TRUE(r.message.qstring().contains("R2000")) << r.message.qstring().toStdString();
}

TEST_F(EditLimitsTest, NumbersThatAreNotFiniteAreRefusedWithASentence) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  const double bad[] = {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity(),
                        -std::numeric_limits<double>::infinity()};
  for (const double v : bad) {
    for (const auto& [category, name] : {std::pair{"General", "Linetype scale"}, std::pair{"Geometry", "Start X"}}) {
      const CZqVariant before = get(id, category, name);
      const CZqEditResult r = edit(id, category, name, CZqVariant(v, true));
      EXPECT_EQ(r.code, kZqSetRefused) << name << " " << v;
      EXPECT_EQ(r.message.qstring(), QString("%1 needs a finite number.").arg(name));
      EXPECT_EQ(get(id, category, name), before) << name;
    }
  }
}

TEST_F(EditLimitsTest, SilentRefusalsBecomeSentences) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  struct Case { const char* category; const char* name; CZqVariant value; const char* sentence; } cases[] = {
      {"General", "Color", CZqVariant(3.0, false), "Color needs a colour."},
      {"Geometry", "Start X", CZqVariant("12"), "Start X needs a number."},
      {"General", "Layer", CZqVariant("0"), "Layer needs one of the drawing's layers."},
      {"General", "Lineweight", CZqVariant("0.25"), "Lineweight needs a whole number."},
  };
  for (const Case& c : cases) {
    const CZqEditResult r = edit(id, c.category, c.name, c.value);
    EXPECT_EQ(r.code, kZqSetRefused) << c.name;
    EXPECT_EQ(r.message.qstring(), c.sentence);
  }
}

TEST_F(EditLimitsTest, ObjectsOnLockedLayersAreNotEditedUnlessForced) {
  const OdDbObjectId locked = lockedLayer();
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  openAs<OdDbEntity>(id, OdDb::kForWrite)->setLayer(locked);
  struct Case { const char* category; const char* name; CZqVariant value; } cases[] = {
      {"General", "Color", CZqVariant(OdCmColor::fromIndex(1))},
      {"General", "Layer", CZqVariant(db->getLayerZeroId())},  // moving it off the layer is an edit too
      {"Geometry", "Start X", CZqVariant(5.0, true)},
  };
  for (const Case& c : cases) {
    const CZqVariant before = get(id, c.category, c.name);
    const CZqEditResult r = edit(id, c.category, c.name, c.value);
    EXPECT_EQ(r.code, kZqSetRefused) << c.name;
    EXPECT_EQ(r.message.qstring(), "The object is on a locked layer.");
    EXPECT_EQ(get(id, c.category, c.name), before) << c.name;
  }
  CZqPropertiesWindowService::SetEditLockedLayers(true);
  for (const Case& c : cases) EXPECT_EQ(edit(id, c.category, c.name, c.value).code, kZqSetApplied) << c.name;
  CZqPropertiesWindowService::SetEditLockedLayers(false);
  EXPECT_EQ(openAs<OdDbEntity>(id)->layerId(), db->getLayerZeroId());
}

TEST_F(EditLimitsTest, TheVertexRowChoosesTheVertexTheOtherRowsEdit) {
  const OdDbObjectId id = addPolyline(5);
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({id});
  auto row = [&](const char* name) {
    static std::vector<CZqPaletteRow> rows;
    rows = service.Rows();
    return *service.FindRow(rows, name);
  };
  CZqVariant third;
  ASSERT_TRUE(service.ParseValue(row("Vertex"), "3", third));
  EXPECT_EQ(service.SetValue("Geometry", "Vertex", third)[0].code, kZqSetApplied);
  EXPECT_EQ(service.CurrentIndex(), CZqVariant(int32_t(2)));
  EXPECT_EQ(row("Vertex").text.qstring(), "3");
  EXPECT_EQ(row("Vertex X").value.GetDouble(), 20.0);
  EXPECT_EQ(service.SetValue("Geometry", "Vertex X", CZqVariant(99.0, true))[0].code, kZqSetApplied);

  // A choice the polyline does not have is refused and keeps the current vertex.
  const CZqEditResult r = service.SetValue("Geometry", "Vertex", CZqVariant(int32_t(9)))[0];
  EXPECT_EQ(r.code, kZqSetRefused);
  EXPECT_FALSE(r.message.isEmpty());
  EXPECT_EQ(service.CurrentIndex(), CZqVariant(int32_t(2)));

  OdSmartPtr<OdDbPolyline> pl = openAs<OdDbPolyline>(id);
  for (unsigned i = 0; i < 5; ++i) {
    OdGePoint3d p;
    pl->getPointAt(i, p);
    EXPECT_EQ(p.x, i == 2 ? 99.0 : 10.0 * i) << i;
  }
  // Another selection starts at the first vertex again.
  service.SetSelection({addPolyline(2)});
  EXPECT_TRUE(service.CurrentIndex().IsEmpty());
}

TEST_F(EditLimitsTest, TypedNumbersNeverWrapIntoValidValues) {
  const OdDbObjectId id = addLine({0, 0, 0}, {1, 0, 0});
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({id});
  const auto rows = service.Rows();
  const CZqPaletteRow& weight = *service.FindRow(rows, "Lineweight");
  struct Case { const char* typed; int32_t value; bool ok; } cases[] = {
      {"4294967301", 0, false},  // 2^32 + 5 hundredths: would wrap to 0.05 mm
      {"-4294967296", 0, false}, {"42949673.01", 0, false}, {"1e300", 0, false}, {"nan", 0, false},
      {"inf", 0, false},         {"0.251", 0, false},       {"25", 25, true},    {"0.25 mm", 25, true},
      {"211", 211, true},        {"ByBlock", -2, true},
  };
  for (const Case& c : cases) {
    CZqVariant v;
    QString why;
    EXPECT_EQ(service.ParseValue(weight, c.typed, v, &why), c.ok) << c.typed;
    if (c.ok) EXPECT_EQ(v.GetInt32(), c.value) << c.typed;
    else EXPECT_TRUE(why.contains("is not a lineweight")) << c.typed << ": " << why.toStdString();
  }
}

}  // namespace
