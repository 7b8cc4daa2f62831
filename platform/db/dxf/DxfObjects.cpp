// Raster images, tables, underlays, OLE frames and lights. Their records are kept
// as they are; an edit writes only the tags of the values it changed. What
// they show of their definitions (an image's file, a table's style, an
// underlay's file) is read from the definition's record in the OBJECTS
// section, found by handle, and never written.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <QtMath>
#include <utility>

namespace OdDxf::mapping {
namespace {

// The record of the OBJECTS section with this handle, or null.
const Record* objectRecord(const Context& ctx, quint64 handle) {
  const Section* objects = ctx.file && handle ? std::as_const(*ctx.file).section("OBJECTS") : nullptr;
  if (!objects) return nullptr;
  for (const Record& r : objects->records)
    if (r.handle() == handle) return &r;
  return nullptr;
}

// The name a dictionary of the OBJECTS section gives the object of this
// handle (an image definition in ACAD_IMAGE_DICT, a table style in
// ACAD_TABLESTYLE), or "".
QString dictionaryNameOf(const Context& ctx, quint64 handle) {
  const Section* objects = ctx.file && handle ? std::as_const(*ctx.file).section("OBJECTS") : nullptr;
  if (!objects) return {};
  QString name;
  for (const Record& r : objects->records) {
    if (!r.isType("DICTIONARY")) continue;
    forEachDictionaryEntry(r, [&](const QString& n, quint64 h) {
      if (name.isEmpty() && h == handle) name = n;
    });
    if (!name.isEmpty()) break;
  }
  return name;
}

QString textOf(const Record* r, int code) {
  const int i = r ? r->find(code, 1) : -1;
  return i >= 0 ? r->str(i) : QString();
}
double realOf(const Record* r, int code, double fallback) {
  const int i = r ? r->find(code, 1) : -1;
  bool ok = false;
  const double v = i >= 0 ? r->at(i).real(&ok) : fallback;
  return ok ? v : fallback;
}
qint64 integerOf(const Record* r, int code, qint64 fallback) {
  const int i = r ? r->find(code, 1) : -1;
  bool ok = false;
  const qint64 v = i >= 0 ? r->at(i).integer(&ok) : fallback;
  return ok ? v : fallback;
}

// --- Raster images ---------------------------------------------------------------

void imageFields(Fields<OdDbRasterImage>& f) {
  using I = OdDbRasterImage;
  RecordIO& io = f.io();
  f.subclass("AcDbRasterImage");
  f.point(10, &I::position, &I::setPosition);
  f.point(11, &I::uVector, &I::setUVectorInternal);
  f.point(12, &I::vVector, &I::setVVectorInternal);
  if (io.reading()) {
    f.object()->setImageSize(OdGePoint2d(io.real(13, 1.0), io.real(23, 1.0)));
    const Record* def = objectRecord(io.ctx(), io.handle(340));
    f.object()->setDefinitionInternal(OdString(dictionaryNameOf(io.ctx(), io.handle(340))), OdString(textOf(def, 1)),
                                      int(integerOf(def, 281, 0)),
                                      OdGePoint2d(realOf(def, 11, 1.0), realOf(def, 21, 1.0)));
  }
  f.integer(70, &I::displayFlags, &I::setDisplayFlags, 0, Opt::Optional);
  f.integer(280, &I::isClipped, &I::setClipped, 0, Opt::Optional);
  f.integer(281, &I::brightness, &I::setBrightness, 50, Opt::Optional);
  f.integer(282, &I::contrast, &I::setContrast, 50, Opt::Optional);
  f.integer(283, &I::fade, &I::setFade, 0, Opt::Optional);
}

// --- Tables ----------------------------------------------------------------------

// The tags of each cell run from its 171 (the cell type) to the next one.
// A text cell's text is its group 1 (an R2007 table repeats it as the
// value's group 302); a text continued in groups 2 or 3 is read but left
// as it is.
struct CellTags {
  int type = 0, text = -1, value = -1;
  bool continued = false;
};

QList<CellTags> cellTags(const RecordIO& io) {
  QList<CellTags> cells;
  for (int i = io.find(171); i >= 0;) {
    const int next = io.find(171, i + 1);
    const int end = next >= 0 ? next : io.record().size();
    CellTags c;
    c.type = int(io.integerAt(i));
    for (int k = i + 1; k < end; ++k) {
      const int code = io.record().at(k).code();
      if (code == 1 && c.text < 0) c.text = k;
      else if (code == 302 && c.value < 0) c.value = k;
      else if ((code == 2 || code == 3) && c.text < 0) c.continued = true;
      else if (code == 1001) break;
    }
    cells.append(c);
    i = next;
  }
  return cells;
}

void tableFields(Fields<OdDbTable>& f) {
  using T = OdDbTable;
  RecordIO& io = f.io();
  f.subclass("AcDbBlockReference");
  f.string(2, &T::blockName, &T::setBlockNameInternal);
  f.point(10, &T::position, &T::setPosition);
  f.subclass("AcDbTable");
  f.point(11, &T::direction, &T::setDirection, Opt::Optional);
  T* table = f.object();
  if (io.reading()) {
    const quint64 style = io.handle(342);
    const Record* styleRecord = objectRecord(io.ctx(), style);
    table->setStyleInternal(OdString(dictionaryNameOf(io.ctx(), style)), integerOf(styleRecord, 70, 0) == 1);
    const int firstCell = io.find(171);
    auto sizes = [&](int code) {
      std::vector<double> v;
      for (int i = io.find(code); i >= 0 && (firstCell < 0 || i < firstCell); i = io.find(code, i + 1))
        v.push_back(io.realAt(i));
      return v;
    };
    table->setGridInternal(sizes(141), sizes(142));
    const QList<CellTags> cells = cellTags(io);
    const int columns = table->numColumns();
    for (int n = 0; n < cells.size() && columns > 0 && n / columns < table->numRows(); ++n) {
      const CellTags& c = cells[n];
      const QString text = c.text >= 0 ? io.record().str(c.text) : QString();
      table->setCellInternal(n / columns, n % columns, c.type, OdString(text),
                             c.type == T::kTextCell && c.text >= 0 && !c.continued);
    }
    return;
  }
  // Only cell texts change: each edited cell's text tags.
  const T* before = f.before();
  if (!before || io.mode() == RecordIO::Create) return;
  const QList<CellTags> cells = cellTags(io);
  const int columns = table->numColumns();
  for (int n = 0; n < cells.size() && columns > 0 && n / columns < table->numRows(); ++n) {
    const int row = n / columns, column = n % columns;
    if (row >= before->numRows() || column >= before->numColumns()) continue;
    if (table->textString(row, column) == before->textString(row, column)) continue;
    const QString text = table->textString(row, column).qstring();
    writeString(io.ctx(), io.record(), cells[n].text, text);
    if (cells[n].value >= 0) writeString(io.ctx(), io.record(), cells[n].value, text);
  }
}

// --- Underlays ---------------------------------------------------------------------

void underlayFields(Fields<OdDbUnderlayReference>& f) {
  using U = OdDbUnderlayReference;
  RecordIO& io = f.io();
  f.subclass("AcDbUnderlayReference");
  if (io.reading()) {
    const Record* def = objectRecord(io.ctx(), io.handle(340));
    f.object()->setDefinitionInternal(OdString(dictionaryNameOf(io.ctx(), io.handle(340))), OdString(textOf(def, 1)),
                                      OdString(textOf(def, 2)));
  }
  f.point(10, &U::position, &U::setPosition);
  auto scale = [&](int code, int axis) {
    f.real(
        code, [axis](const U* u) { return u->scaleFactors()[axis]; },
        [axis](U* u, double v) {
          OdGeScale3d s = u->scaleFactors();
          s[axis] = v;
          u->setScaleFactors(s);
        },
        1.0, Opt::Optional);
  };
  scale(41, 0);
  scale(42, 1);
  scale(43, 2);
  f.real(
      50, [](const U* u) { return qRadiansToDegrees(u->rotation()); },
      [](U* u, double deg) { u->setRotation(qDegreesToRadians(deg)); }, 0.0, Opt::Optional);
  f.normal(210, &U::normal, &U::setNormal);
  f.integer(280, &U::flags, &U::setFlags, U::kOn, Opt::Optional);
  f.integer(281, &U::contrast, &U::setContrast, 100, Opt::Optional);
  f.integer(282, &U::fade, &U::setFade, 0, Opt::Optional);
}

// --- OLE frames ------------------------------------------------------------------------

void ole2FrameFields(Fields<OdDbOle2Frame>& f) {
  using O = OdDbOle2Frame;
  f.subclass("AcDbOle2Frame");
  f.point(10, &O::upperLeft, &O::setUpperLeft);
  f.point(11, &O::lowerRight, &O::setLowerRight);
  f.integer(71, &O::type, &O::setType, O::kEmbedded, Opt::Optional);
  f.integer(72, &O::tileMode, &O::setTileMode, 0, Opt::Optional);
}

// --- Lights ----------------------------------------------------------------------------

void lightFields(Fields<OdDbLight>& f) {
  using L = OdDbLight;
  f.subclass("AcDbLight");
  f.string(1, &L::name, &L::setName);
  f.integer(70, &L::lightType, &L::setLightType, L::kPointLight);
  f.integer(290, &L::isOn, &L::setOn, 1);
  f.real(40, &L::intensity, &L::setIntensity, 1.0);
  f.point(10, &L::position, &L::setPosition);
  f.point(11, &L::targetLocation, &L::setTargetLocation);
  // The file keeps the cone angles in degrees.
  f.real(
      50, [](const L* l) { return qRadiansToDegrees(l->hotspotAngle()); },
      [](L* l, double deg) { l->setHotspotInternal(qDegreesToRadians(deg)); }, 45.0);
  f.real(
      51, [](const L* l) { return qRadiansToDegrees(l->falloffAngle()); },
      [](L* l, double deg) { l->setFalloffInternal(qDegreesToRadians(deg)); }, 50.0);
  f.integer(293, &L::castShadows, &L::setCastShadows, 1);
}

// clang-format off
//                                  record         class                        since fields                                                    sequence partial
// None of them can be written new: their definitions and data are not made.
constexpr ClassMapping kObjectEntities[] = {
    {"IMAGE",       &OdDbRasterImage::desc,  1014, &fieldsOf<OdDbRasterImage, imageFields>,             false, true},
    {"ACAD_TABLE",  &OdDbTable::desc,        1015, &fieldsOf<OdDbTable, tableFields>,                   false, true},
    {"PDFUNDERLAY", &OdDbPdfReference::desc, 1021, &fieldsOf<OdDbUnderlayReference, underlayFields>,    false, true},
    {"DGNUNDERLAY", &OdDbDgnReference::desc, 1021, &fieldsOf<OdDbUnderlayReference, underlayFields>,    false, true},
    {"DWFUNDERLAY", &OdDbDwfReference::desc, 1021, &fieldsOf<OdDbUnderlayReference, underlayFields>,    false, true},
    {"OLE2FRAME",   &OdDbOle2Frame::desc,    1014, &fieldsOf<OdDbOle2Frame, ole2FrameFields>,           false, true},
    {"LIGHT",       &OdDbLight::desc,        1021, &fieldsOf<OdDbLight, lightFields>,                   false, true},
};
// clang-format on

}  // namespace

const ClassMapping* objectEntityMapping(const OdRxClass* cls) {
  for (const ClassMapping& m : kObjectEntities)
    if (m.desc() == cls) return &m;
  return nullptr;
}

}  // namespace OdDxf::mapping
