// What a user is told when an edit of a curve row is refused through the
// properties-window service (the palette, zqprops, "-PROPERTIES"): a
// sentence that says what the row takes, whether or not the row shows a
// message box of its own; and the object stays as it was.
#include "ZqTestSupport.h"

namespace {

class RefusalSentencesTest : public ZqDrawingTest {};

TEST_F(RefusalSentencesTest, RefusedEditsSayWhatTheRowTakes) {
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setRadius(2);
  const OdDbObjectId c = addToModelSpace(circle.get());
  circle.release();
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  pl->addVertexAt(0, {0, 0});
  pl->addVertexAt(1, {4, 0});
  const OdDbObjectId p = addToModelSpace(pl.get());
  {
    CLOUDLINE_COMMAND_DATA cloud;
    cloud.style = "Freehand";
    cloud.arcRadius = 1;
    CZqCloudBase::WriteCloudData(pl.get(), cloud);
  }
  pl.release();
  const struct {
    OdDbObjectId id;
    const char *category, *name;
    CZqVariant value;
    bool box;  // the row shows its own message box
    const char* sentence;
  } cases[] = {
      {c, "Geometry", "Radius", CZqVariant(0.0, true), false, "Radius must not be 0"},
      {c, "Geometry", "Diameter", CZqVariant(0.0, true), false, "Diameter must not be 0"},
      {c, "Geometry", "Area", CZqVariant("0"), false,
       "Area must be an area other than 0, followed by \"sq. in.\" in engineering and architectural units"},
      {p, "Geometry", "Start segment width", CZqVariant(-1.0, true), false, "Start segment width must be 0 or greater"},
      {p, "Cloud Settings", "Radius", CZqVariant(-1.0, true), true, "Value must be positive and non-zero."},
  };
  CZqPropertiesWindowService service(db.get());
  for (const auto& k : cases) {
    SCOPED_TRACE(k.name);
    service.SetSelection({k.id});
    const CZqVariant before = get(k.id, k.category, k.name);
    GetZqSystemServices()->ClearMessages();
    const std::vector<CZqEditResult> results = service.SetValue(k.category, k.name, k.value);
    ASSERT_EQ(results.size(), 1u);
    EXPECT_EQ(results[0].code, kZqSetRefused);
    EXPECT_EQ(results[0].message.qstring(), k.sentence);
    EXPECT_EQ(messageCount(), k.box ? 1u : 0u);
    EXPECT_EQ(get(k.id, k.category, k.name), before);
  }
}

}  // namespace
