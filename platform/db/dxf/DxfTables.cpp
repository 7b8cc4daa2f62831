// Symbol table records: layers, linetypes, text styles, dimension styles,
// applications and blocks. One fields function per record type.
#include "DbPlainClasses.h"
#include "DxfMapping.h"
#include "OdResBuf.h"

#include <QtMath>

namespace OdDxf::mapping {
namespace {

template <class T>
void nameField(Fields<T>& f) {
  f.string(2, &T::getName, &T::setName);
}

}  // namespace

// R12 names the two layout blocks $MODEL_SPACE and $PAPER_SPACE.
QString blockName(const QString& fileName) {
  if (fileName.compare(QLatin1String("$MODEL_SPACE"), Qt::CaseInsensitive) == 0)
    return OdDbBlockTableRecord::modelSpaceStr().qstring();
  if (fileName.compare(QLatin1String("$PAPER_SPACE"), Qt::CaseInsensitive) == 0)
    return OdDbBlockTableRecord::paperSpaceStr().qstring();
  return fileName;
}

namespace {

const QString kTransparencyApp = QStringLiteral("AcCmTransparency");

void layerFields(Fields<OdDbLayerTableRecord>& f) {
  RecordIO& io = f.io();
  OdDbLayerTableRecord* layer = f.object();
  const OdDbLayerTableRecord* before = f.before();
  const bool create = io.mode() == RecordIO::Create;
  f.subclass("AcDbLayerTableRecord");
  nameField(f);
  f.flag(70, 1, &OdDbLayerTableRecord::isFrozen, &OdDbLayerTableRecord::setIsFrozen);
  f.flag(70, 4, &OdDbLayerTableRecord::isLocked, &OdDbLayerTableRecord::setIsLocked);

  // 62: the colour index, negative for a layer that is off; 420 true colour.
  if (io.reading()) {
    layer->setColor(readColor(io, true));
    layer->setIsOff(io.integer(62, 7) < 0);
  } else if (create || layer->color() != before->color() || layer->isOff() != before->isOff()) {
    writeColorIndex(io, layer->color(), layer->isOff() ? -1 : 1, false);
    if (create || layer->color() != before->color()) writeTrueColor(io, layer->color());
  } else {
    io.skip(62);
    io.skip(420);
  }

  readOrWriteLinetype(io, 6, io.reading() ? OdDbObjectId() : layer->linetypeObjectId(),
                      before ? before->linetypeObjectId() : OdDbObjectId(),
                      [&](const OdDbObjectId& id) { layer->setLinetypeObjectId(id); });
  if (io.reading() || io.supports(1015)) {
    f.integer(
        290, [](const OdDbLayerTableRecord* l) { return l->isPlottable() ? 1 : 0; },
        [](OdDbLayerTableRecord* l, int v) { l->setIsPlottable(v != 0); }, 1, Opt::Optional);
    f.integer(370, &OdDbLayerTableRecord::lineWeight, &OdDbLayerTableRecord::setLineWeight, OdDb::kLnWtByLwDefault);
  }

  // Transparency: the packed value in the AcCmTransparency application's
  // extended data; none means opaque.
  if (io.reading()) {
    if (OdResBufPtr items = io.xdataOf(kTransparencyApp))
      for (const OdResBuf* p = items.get(); p; p = p->next())
        if (p->restype() == OdResBuf::kDxfXdInteger32) {
          layer->setTransparency(OdCmTransparency::fromPacked(p->getInt32()));
          break;
        }
  } else {
    const OdCmTransparency opaque = OdDbLayerTableRecord::createObject()->transparency();
    const OdCmTransparency t = layer->transparency();
    if (create ? !(t == opaque) : !(t == before->transparency())) {
      OdResBufPtr item = OdResBuf::newRb(OdResBuf::kDxfXdInteger32, int64_t(t.packed()));
      io.putXdataOf(kTransparencyApp, t == opaque ? nullptr : item.get());
    }
  }
}

void linetypeFields(Fields<OdDbLinetypeTableRecord>& f) {
  RecordIO& io = f.io();
  f.subclass("AcDbLinetypeTableRecord");
  nameField(f);
  if (io.mode() == RecordIO::Create) io.putInteger(70, 0);
  f.string(3, &OdDbLinetypeTableRecord::comments, &OdDbLinetypeTableRecord::setComments);
  if (io.mode() == RecordIO::Create) io.putInteger(72, 65);

  // 73 the number of dashes, 40 the pattern length, then each dash as 49
  // (with its 74 element type from R13 on).
  OdDbLinetypeTableRecord* lt = f.object();
  if (io.reading()) {
    lt->setPatternLength(io.real(40, 0.0));
    OdArray<double> dashes;
    for (int i = io.find(49); i >= 0; i = io.find(49, i + 1)) dashes.append(io.realAt(i));
    lt->setDashes(dashes);
    return;
  }
  const OdArray<double>& now = lt->dashes();
  const bool dashesChanged = !(now == f.before()->dashes());
  if (dashesChanged || io.mode() == RecordIO::Create) io.putInteger(73, now.length());
  else io.skip(73);
  f.real(40, &OdDbLinetypeTableRecord::patternLength, &OdDbLinetypeTableRecord::setPatternLength);
  if (!dashesChanged) return;
  std::vector<int> at;
  for (int i = io.find(49); i >= 0; i = io.find(49, i + 1)) at.push_back(i);
  if (at.size() == now.length()) {  // same count: each dash in place
    Record& r = io.record();
    for (size_t k = 0; k < at.size(); ++k)
      if (!same(r.at(at[k]).real(), now[unsigned(k)])) r.setReal(at[k], now[unsigned(k)]);
    return;
  }
  // A new count: the elements are written anew, which only simple dashes allow.
  for (int i = io.find(74); i >= 0; i = io.find(74, i + 1))
    if (io.integerAt(i) != 0)
      throw MapError{QStringLiteral("linetype '%1' has complex elements; its number of dashes cannot be changed")
                         .arg(lt->getName().qstring())};
  while (io.has(49)) io.remove(49);
  while (io.has(74)) io.remove(74);
  io.skip(40);
  Record& r = io.record();
  for (double d : now) {
    r.setReal(io.insertTag(49), d);
    if (io.supports(1012)) r.setInteger(io.insertTag(74), 0);
  }
}

void textStyleFields(Fields<OdDbTextStyleTableRecord>& f) {
  using S = OdDbTextStyleTableRecord;
  f.subclass("AcDbTextStyleTableRecord");
  nameField(f);
  f.integer(70, &S::flags, &S::setFlags);
  f.real(40, &S::textSize, &S::setTextSize);
  f.real(41, &S::xScale, &S::setXScale, 1.0);
  // The file keeps the obliquing angle in degrees.
  f.real(
      50, [](const S* s) { return qRadiansToDegrees(s->obliquingAngle()); },
      [](S* s, double deg) { s->setObliquingAngle(qDegreesToRadians(deg)); });
  f.integer(71, &S::textGenerationFlags, &S::setTextGenerationFlags);
  f.real(42, &S::priorSize, &S::setPriorSize, 2.5);
  f.string(3, &S::fileName, &S::setFileName);
  f.string(4, &S::bigFontFileName, &S::setBigFontFileName);
}

void regAppFields(Fields<OdDbRegAppTableRecord>& f) {
  f.subclass("AcDbRegAppTableRecord");
  nameField(f);
  if (f.io().mode() == RecordIO::Create) f.io().putInteger(70, 0);
}

void blockNameField(Fields<OdDbBlockTableRecord>& f) {
  f.string(
      2, [](const OdDbBlockTableRecord* b) { return b->getName(); },
      [](OdDbBlockTableRecord* b, const OdString& n) { b->setName(blockName(n.qstring())); });
}

void blockRecordFields(Fields<OdDbBlockTableRecord>& f) {
  using B = OdDbBlockTableRecord;
  f.subclass("AcDbBlockTableRecord");
  blockNameField(f);
  f.io().skip(340);
  // Insertion units, explodability and scaling (R2000 on).
  f.integer(70, &B::blockInsertUnits, &B::setBlockInsertUnits, 0, Opt::Optional);
  f.integer(280, &B::explodable, &B::setExplodable, 1, Opt::Optional);
  f.integer(281, &B::blockScaling, &B::setBlockScaling, 0, Opt::Optional);
}

// A 2D point of a view (display coordinates) through the 3D point fields.
template <class T, auto Get, auto Set>
void point2d(Fields<T>& f, int code) {
  f.point(
      code, [](const T* t) { const OdGePoint2d p = (t->*Get)(); return OdGePoint3d(p.x, p.y, 0); },
      [](T* t, const OdGePoint3d& p) { (t->*Set)(OdGePoint2d(p.x, p.y)); }, Opt::Required, 2);
}

// What views and viewport configurations share, after their own first fields.
template <class T>
void viewDirectionFields(Fields<T>& f, int directionCode) {
  f.point(directionCode, &T::viewDirection, &T::setViewDirection);
  f.point(directionCode + 1, &T::target, &T::setTarget);
}

// The file keeps angles in degrees.
template <class T, auto Get, auto Set>
void degrees(Fields<T>& f, int code) {
  f.real(
      code, [](const T* t) { return qRadiansToDegrees((t->*Get)()); },
      [](T* t, double deg) { (t->*Set)(qDegreesToRadians(deg)); });
}

void viewFields(Fields<OdDbViewTableRecord>& f) {
  using V = OdDbViewTableRecord;
  f.subclass("AcDbViewTableRecord");
  nameField(f);
  f.integer(70, &V::flags, &V::setFlags);
  f.real(40, &V::height, &V::setHeight, 1.0);
  point2d<V, &V::centerPoint, &V::setCenterPoint>(f, 10);
  f.real(41, &V::width, &V::setWidth, 1.0);
  viewDirectionFields(f, 11);
  f.real(42, &V::lensLength, &V::setLensLength, 50.0);
  f.io().skip(43);
  f.io().skip(44);
  degrees<V, &V::viewTwist, &V::setViewTwist>(f, 50);
}

void vportFields(Fields<OdDbViewportTableRecord>& f) {
  using V = OdDbViewportTableRecord;
  f.subclass("AcDbViewportTableRecord");
  nameField(f);
  f.io().skip(70);
  f.io().skip(10, 2);
  f.io().skip(11, 2);
  point2d<V, &V::centerPoint, &V::setCenterPoint>(f, 12);
  point2d<V, &V::snapBase, &V::setSnapBase>(f, 13);
  point2d<V, &V::snapIncrements, &V::setSnapIncrements>(f, 14);
  point2d<V, &V::gridIncrements, &V::setGridIncrements>(f, 15);
  viewDirectionFields(f, 16);
  f.real(40, &V::height, &V::setHeight, 1.0);
  f.real(41, &V::aspectRatio, &V::setAspectRatio, 1.0);
  f.real(42, &V::lensLength, &V::setLensLength, 50.0);
  f.io().skip(43);
  f.io().skip(44);
  degrees<V, &V::snapAngle, &V::setSnapAngle>(f, 50);
  degrees<V, &V::viewTwist, &V::setViewTwist>(f, 51);
  for (int code : {71, 72, 73, 74}) f.io().skip(code);
  f.integer(75, &V::snapEnabled, &V::setSnapEnabled);
  f.integer(76, &V::gridEnabled, &V::setGridEnabled);
}

//                                   record          class                              since  fields
constexpr ClassMapping kRecords[] = {
    {"LAYER",        &OdDbLayerTableRecord::desc,     0,    &fieldsOf<OdDbLayerTableRecord, layerFields>},
    {"LTYPE",        &OdDbLinetypeTableRecord::desc,  0,    &fieldsOf<OdDbLinetypeTableRecord, linetypeFields>},
    {"STYLE",        &OdDbTextStyleTableRecord::desc, 0,    &fieldsOf<OdDbTextStyleTableRecord, textStyleFields>},
    {"DIMSTYLE",     &OdDbDimStyleTableRecord::desc,  0,    &fieldsOf<OdDbDimStyleTableRecord, dimStyleFields>},
    {"APPID",        &OdDbRegAppTableRecord::desc,    1009, &fieldsOf<OdDbRegAppTableRecord, regAppFields>},
    {"BLOCK_RECORD", &OdDbBlockTableRecord::desc,     1012, &fieldsOf<OdDbBlockTableRecord, blockRecordFields>},
    {"VIEW",         &OdDbViewTableRecord::desc,      0,    &fieldsOf<OdDbViewTableRecord, viewFields>},
    {"VPORT",        &OdDbViewportTableRecord::desc,  0,    &fieldsOf<OdDbViewportTableRecord, vportFields>},
};

}  // namespace

const ClassMapping* recordMapping(const OdRxClass* cls) {
  for (const ClassMapping& m : kRecords)
    if (m.desc() == cls) return &m;
  return objectMapping(cls);
}

const ClassMapping* recordMapping(QByteArrayView type) {
  for (const ClassMapping& m : kRecords)
    if (type == m.dxfName) return &m;
  return objectMapping(type);
}

QStringList ownXdataApps(const OdRxClass* cls) {
  if (cls == OdDbLayerTableRecord::desc()) return {kTransparencyApp};
  return {};
}

// The BLOCK record that starts a block definition: its name and base point.
void blockBeginFields(RecordIO& io, OdDbBlockTableRecord* block, const OdDbBlockTableRecord* before) {
  Fields<OdDbBlockTableRecord> f(io, block, before);
  f.subclass("AcDbBlockBegin");
  blockNameField(f);
  if (io.mode() == RecordIO::Create) io.putInteger(70, 0);
  f.point(10, &OdDbBlockTableRecord::origin, &OdDbBlockTableRecord::setOrigin);
  if (io.mode() == RecordIO::Create) io.putString(3, block->getName().qstring());
  else if (io.mode() == RecordIO::Patch && block->getName() != before->getName() && io.has(3))
    io.putString(3, block->getName().qstring());
  if (io.mode() == RecordIO::Create && io.ctx().markers) io.putString(1, QString());
}

}  // namespace OdDxf::mapping
