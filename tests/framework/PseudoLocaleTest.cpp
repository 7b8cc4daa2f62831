// A language that changes every word: the palette rows, their values, the
// listings and the edits dispatched by name through the properties-window
// service (as zqprops and "-PROPERTIES" do) come out the same, but for the
// words. Rows are found by their untranslated keys in both languages.
#include "ZqTestSupport.h"
#include <QCoreApplication>
#include <QTranslator>
#include <map>

namespace {

// Wraps every run of letters in brackets: "Start X" -> "[Start] [X]",
// "Location %1" -> "[Location] %1" (placeholders and numbers survive).
QString pseudo(const QString& text) {
  QString out;
  for (qsizetype i = 0; i < text.size();) {
    if (!text[i].isLetter()) {
      out += text[i++];
      continue;
    }
    qsizetype j = i;
    while (j < text.size() && text[j].isLetter()) ++j;
    out += u'[' + text.mid(i, j - i) + u']';
    i = j;
  }
  return out;
}

class PseudoTranslator : public QTranslator {
 public:
  QString translate(const char*, const char* sourceText, const char*, int) const override {
    return sourceText ? pseudo(QString::fromUtf8(sourceText)) : QString();
  }
  bool isEmpty() const override { return false; }
};

QCoreApplication* application() {
  if (!QCoreApplication::instance()) {
    static int argc = 1;
    static char name[] = "test_framework";
    static char* argv[] = {name, nullptr};
    static QCoreApplication app(argc, argv);
  }
  return QCoreApplication::instance();
}

struct RowState {
  QString category, name;
  CZqCustomPropertyType type;
  bool readOnly;
  unsigned visibility;
  CZqVariant value;
  QString darkIcon;
};

struct EditResult {
  QString object, row;
  int code;
  QString message;
};

// What one run sees: per object handle, the rows by key and the listing;
// and the results of the edits.
struct RunState {
  std::map<std::string, std::map<QString, RowState>> rows;
  std::map<std::string, std::vector<CZqPrintInfoContext::Line>> lines;
  std::vector<EditResult> edits;
  std::map<std::string, std::map<QString, RowState>> rowsAfter;
};

// One drawing, made the same way in every run.
std::vector<OdDbObjectId> makeDrawing(OdDbDatabase* db) {
  std::vector<OdDbObjectPtr> objects;
  OdDbLinePtr line = OdDbLine::createObject();
  line->setStartPoint({1, 2, 3});
  line->setEndPoint({4, 6, 3});
  objects.push_back(line.get());
  OdDbCirclePtr circle = OdDbCircle::createObject();
  circle->setCenter({5, 5, 0});
  circle->setRadius(2);
  objects.push_back(circle.get());
  OdDbPolylinePtr pl = OdDbPolyline::createObject();
  const OdGePoint2d pts[] = {{0, 0}, {4, 0}, {4, 3}};
  for (unsigned i = 0; i < 3; ++i) pl->addVertexAt(i, pts[i]);
  objects.push_back(pl.get());
  OdDbPointPtr point = OdDbPoint::createObject();
  point->setPosition({7, 8, 9});
  objects.push_back(point.get());
  OdDbRayPtr ray = OdDbRay::createObject();
  ray->setBasePoint({1, 1, 0});
  ray->setUnitDir(OdGeVector3d(1, 1, 0).normal());
  objects.push_back(ray.get());
  OdDbXlinePtr xline = OdDbXline::createObject();
  xline->setBasePoint({-1, 0, 0});
  xline->setUnitDir(OdGeVector3d::kYAxis);
  objects.push_back(xline.get());
  std::vector<OdDbObjectId> ids;
  OdDbObjectPtr ms = db->getModelSpaceId().openObject(OdDb::kForWrite);
  for (OdDbObjectPtr& o : objects) ids.push_back(OdDbBlockTableRecord::cast(ms.get())->appendOdDbEntity(static_cast<OdDbEntity*>(o.get())));
  {
    OdDbObjectPtr obj = ids[2].openObject(OdDb::kForWrite);
    CLOUDLINE_COMMAND_DATA cloud;
    cloud.style = "Freehand";
    cloud.arcRadius = 0.5;
    CZqCloudBase::WriteCloudData(static_cast<OdDbEntity*>(obj.get()), cloud);
  }
  return ids;
}

std::map<QString, RowState> rowsOf(const OdDbObjectId& id) {
  std::map<QString, RowState> out;
  OdDbObjectPtr obj = id.openObject();
  auto rows = zqRowsOf(obj.get());
  for (int i = 0; rows && i < rows->GetCount(); ++i) {
    const CZqPropertyDescription* d = rows->GetAt(i);
    CZqVariant value = d->GetValue(obj.get(), CZqVariant());
    // An id outlives no drawing: it is kept as its handle (the same in both runs).
    if (value.GetType() == CZqVariant::kVtId) value = CZqVariant(int32_t(value.GetId().getHandle()));
    out[d->GetCategoryKey().qstring() + "/" + d->GetNameKey().qstring()] =
        RowState{d->GetCategory().qstring(), d->GetName().qstring(), d->GetType(), d->IsReadOnly(obj.get()),
                 d->GetVisibility(),          value,              d->GetDarkIcon().qstring()};
  }
  return out;
}

// Edits as a user types them: the row's untranslated name, the text.
struct Edit {
  size_t object;
  const char* row;
  const char* typed;
};
const Edit kEdits[] = {
    {0, "Start X", "12.5"}, {0, "Thickness", "-2"},      {0, "Geometry/End Z", "1"},  {1, "Radius", "3"},
    {1, "Radius", "0"},     {1, "Diameter", "10"},       {2, "Closed", "1"},          {2, "Global width", "0.25"},
    {2, "Start segment width", "-1"}, {2, "Cloud Settings/Radius", "-4"}, {2, "Cloud Settings/Radius", "0.75"},
    {3, "Position Z", "0"}, {4, "Second point Y", "5"},  {5, "Base point X", "3"},
};

RunState run(QTranslator* translator) {
  zqEnsureModuleLoaded();
  zqUnloadModule();  // fresh static lists, built in this run's language
  if (translator) QCoreApplication::installTranslator(translator);
  zqEnsureModuleLoaded();
  RunState state;
  OdDbDatabasePtr db = OdDbDatabase::createObject();
  const std::vector<OdDbObjectId> ids = makeDrawing(db.get());
  CZqPropertiesWindowService service(db.get());
  service.SetSelection({ids[0], ids[1]});  // the totals show on the line and the circle
  for (const OdDbObjectId& id : ids) {
    const std::string h = id.getHandle().ascii().toStdString();
    state.rows[h] = rowsOf(id);
    OdDbObjectPtr obj = id.openObject();
    CZqPrintInfoContext ctx(db.get(), false);
    zqInfoFor(obj.get())->PrintObjectInfo(obj.get(), &ctx);
    state.lines[h] = ctx.Lines();
  }
  for (const Edit& e : kEdits) {
    service.SetSelection({ids[e.object]});
    const std::vector<CZqPaletteRow> rows = service.Rows();
    QString why;
    const CZqPaletteRow* row = service.FindRow(rows, e.row, &why);
    EXPECT_NE(row, nullptr) << e.row << ": " << why.toStdString();
    if (!row) continue;
    CZqVariant value;
    EXPECT_TRUE(service.ParseValue(*row, e.typed, value, &why)) << e.row << ": " << why.toStdString();
    for (const CZqEditResult& r : service.SetValue(row->categoryKey, row->nameKey, value))
      state.edits.push_back({QString::number(e.object), e.row, r.code, r.message.qstring()});
  }
  for (const OdDbObjectId& id : ids) state.rowsAfter[id.getHandle().ascii().toStdString()] = rowsOf(id);
  if (translator) QCoreApplication::removeTranslator(translator);
  if (CZqVELOXQTGate* gate = GetZqVELOXQTGate()) gate->ClearSelection();
  db.release();
  zqUnloadModule();
  return state;
}

// The same text but for the words: translated, or (for the host's own
// rows, built once per process) as it was.
void expectSameButWords(const QString& english, const QString& other, const std::string& where) {
  EXPECT_TRUE(other == pseudo(english) || other == english) << where << ": \"" << english.toStdString() << "\" / \""
                                                            << other.toStdString() << "\"";
}

void expectSameValue(const CZqVariant& a, const CZqVariant& b, const std::string& where) {
  ASSERT_EQ(a.GetType(), b.GetType()) << where;
  switch (a.GetType()) {
    case CZqVariant::kVtString: expectSameButWords(a.GetString().qstring(), b.GetString().qstring(), where); break;
    case CZqVariant::kVtCollection: {
      const CZqVariantCollection &ca = a.GetCollection(), &cb = b.GetCollection();
      ASSERT_EQ(ca.GetCount(), cb.GetCount()) << where;
      EXPECT_EQ(ca.GetCurrent(), cb.GetCurrent()) << where;
      for (int i = 0; i < ca.GetCount(); ++i) {
        EXPECT_EQ(ca.GetAt(i).GetTag(), cb.GetAt(i).GetTag()) << where;
        expectSameValue(ca.GetAt(i).GetValue(), cb.GetAt(i).GetValue(), where);
      }
      break;
    }
    default: EXPECT_EQ(a, b) << where;
  }
}

// The host's general rows, by key.
bool hostRow(const QString& key) {
  for (const CZqPropertyDescription* d : CZqEntityPE::GeneralRows())
    if (key == d->GetCategoryKey().qstring() + "/" + d->GetNameKey().qstring()) return true;
  return false;
}

void expectSameRows(const std::map<std::string, std::map<QString, RowState>>& a,
                    const std::map<std::string, std::map<QString, RowState>>& b, bool wordsMustChange) {
  ASSERT_EQ(a.size(), b.size());
  for (const auto& [handle, rowsA] : a) {
    const auto& rowsB = b.at(handle);
    ASSERT_EQ(rowsA.size(), rowsB.size()) << handle;
    for (const auto& [key, ra] : rowsA) {
      const std::string where = handle + " " + key.toStdString();
      ASSERT_TRUE(rowsB.count(key)) << where << " is not found by its key";
      const RowState& rb = rowsB.at(key);
      expectSameButWords(ra.category, rb.category, where);
      expectSameButWords(ra.name, rb.name, where);
      // The module's own rows are translated (the hidden matching row never
      // is; the host's general rows keep the language they were built in).
      if (wordsMustChange && ra.category != "MATCHPROP" && !hostRow(key)) {
        EXPECT_EQ(rb.name, pseudo(ra.name)) << where;
      }
      EXPECT_EQ(ra.type, rb.type) << where;
      EXPECT_EQ(ra.readOnly, rb.readOnly) << where;
      EXPECT_EQ(ra.visibility, rb.visibility) << where;
      EXPECT_EQ(ra.darkIcon, rb.darkIcon) << where;  // icons are named by the keys
      expectSameValue(ra.value, rb.value, where);
    }
  }
}

TEST(PseudoLocaleTest, NothingButTheWordsChanges) {
  application();
  PseudoTranslator translator;
  const RunState english = run(nullptr);
  const RunState changed = run(&translator);
  zqEnsureModuleLoaded();

  expectSameRows(english.rows, changed.rows, true);
  for (const auto& [handle, la] : english.lines) {
    const auto& lb = changed.lines.at(handle);
    ASSERT_EQ(la.size(), lb.size()) << handle;
    for (size_t i = 0; i < la.size(); ++i) {
      const std::string where = handle + " " + la[i].label.toStdString();
      EXPECT_EQ(lb[i].label, pseudo(la[i].label)) << where;
      EXPECT_EQ(la[i].kind, lb[i].kind) << where;
      if (la[i].value.typeId() == QMetaType::QString) expectSameButWords(la[i].value.toString(), lb[i].value.toString(), where);
      else EXPECT_EQ(la[i].value, lb[i].value) << where;
    }
  }
  ASSERT_EQ(english.edits.size(), changed.edits.size());
  int refused = 0;
  for (size_t i = 0; i < english.edits.size(); ++i) {
    const EditResult &a = english.edits[i], &b = changed.edits[i];
    const std::string where = a.object.toStdString() + " " + a.row.toStdString();
    EXPECT_EQ(a.code, b.code) << where;
    if (a.code == kZqSetRefused) {
      ++refused;
      EXPECT_FALSE(a.message.isEmpty()) << where << ": a refusal says why";
      EXPECT_EQ(b.message, pseudo(a.message)) << where;
    }
  }
  EXPECT_EQ(refused, 3);  // radius 0, a negative segment width, a negative cloud radius
  expectSameRows(english.rowsAfter, changed.rowsAfter, true);
}

}  // namespace
