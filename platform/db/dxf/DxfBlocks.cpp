// Block references (INSERT, MINSERT) and the other classes of blocks and
// references whose data is mapped. Their records are kept as they are;
// an edit writes only the tags of the values it changed.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <QtMath>
#include <utility>

namespace OdDxf::mapping {
namespace {

bool hasMarker(const RecordIO& io, QByteArrayView marker) {
  const Record& r = io.record();
  for (int i = 1; i < r.size(); ++i)
    if (r.at(i).code() == 100 && r.at(i).trimmed() == marker) return true;
  return false;
}

template <class R>
void referenceFields(Fields<R>& f) {
  using B = OdDbBlockReference;
  RecordIO& io = f.io();
  const bool multiple = std::is_same_v<R, OdDbMInsertBlock>;
  // A multiple insert is marked AcDbMInsertBlock by some writers and
  // AcDbBlockReference by others.
  f.subclass(multiple && hasMarker(io, "AcDbMInsertBlock") ? "AcDbMInsertBlock" : "AcDbBlockReference");
  io.skip(66);
  f.string(2, &B::blockName, &B::setBlockNameInternal);
  f.ocsPoint(10, 210, &B::position, &B::setPosition, &B::normal);
  auto scale = [&](int code, int axis) {
    f.real(
        code, [axis](const B* r) { return r->scaleFactors()[axis]; },
        [axis](B* r, double v) {
          OdGeScale3d s = r->scaleFactors();
          s[axis] = v;
          r->setScaleFactors(s);
        },
        1.0, Opt::Optional);
  };
  scale(41, 0);
  scale(42, 1);
  scale(43, 2);
  f.real(
      50, [](const B* r) { return qRadiansToDegrees(r->rotation()); },
      [](B* r, double deg) { r->setRotation(qDegreesToRadians(deg)); }, 0.0, Opt::Optional);
  if constexpr (multiple) {
    using M = OdDbMInsertBlock;
    f.integer(70, &M::columns, &M::setColumns, 1, Opt::Optional);
    f.integer(71, &M::rows, &M::setRows, 1, Opt::Optional);
    f.real(44, &M::columnSpacing, &M::setColumnSpacing, 0.0, Opt::Optional);
    f.real(45, &M::rowSpacing, &M::setRowSpacing, 0.0, Opt::Optional);
  } else {
    io.skip(70);
    io.skip(71);
    io.skip(44);
    io.skip(45);
  }
  f.normal(210, &B::normal, &B::setNormal);
}

// A proxy's record is never written: what describes it is read from the
// drawing's class list - by the class number of an ACAD_PROXY_ENTITY, by
// the record type of an entity of an unknown type.
void proxyFields(Fields<OdDbProxyEntity>& f) {
  if (!f.reading()) return;
  RecordIO& io = f.io();
  const Record& r = io.record();
  QString dxfName = QString::fromLatin1(r.type().toByteArray());
  const Section* classes = io.ctx().file ? std::as_const(*io.ctx().file).section("CLASSES") : nullptr;
  const Record* cls = nullptr;
  if (r.isType("ACAD_PROXY_ENTITY")) {
    io.subclass("AcDbProxyEntity");
    const int at = io.find(91);
    const qint64 number = at >= 0 ? io.integerAt(at) : 0;
    if (classes && number >= 500 && number - 500 < classes->records.size()) cls = &classes->records[number - 500];
  } else if (classes) {
    for (const Record& c : classes->records) {
      const int i = c.find(1);
      if (i >= 0 && c.str(i).trimmed() == dxfName) {
        cls = &c;
        break;
      }
    }
  }
  auto text = [&](int code) {
    const int i = cls ? cls->find(code) : -1;
    return i >= 0 ? cls->str(i).trimmed() : QString();
  };
  int flags = 0;
  if (cls) {
    const int i = cls->find(90);
    bool ok = false;
    if (i >= 0) flags = int(cls->at(i).integer(&ok));
    if (!ok) flags = 0;
    if (!text(1).isEmpty()) dxfName = text(1);
  }
  f.object()->setDescriptionInternal(OdString(dxfName), OdString(text(2)), OdString(text(3)), flags, cls != nullptr);
}

// clang-format off
//                                 record   class                       since fields                                                       sequence partial
constexpr ClassMapping kBlockEntities[] = {
    // New references cannot be written: their attributes and SEQEND are not made.
    {"INSERT",     &OdDbBlockReference::desc, 0, &fieldsOf<OdDbBlockReference, referenceFields<OdDbBlockReference>>, false, true},
    {"INSERT",     &OdDbMInsertBlock::desc,   0, &fieldsOf<OdDbMInsertBlock, referenceFields<OdDbMInsertBlock>>,     false, true},
    // Proxies keep their data as it is: new ones cannot be written.
    {"ACAD_PROXY_ENTITY", &OdDbProxyEntity::desc, 0, &fieldsOf<OdDbProxyEntity, proxyFields>,                 false, true},
};
// clang-format on

}  // namespace

const ClassMapping* blockEntityMapping(const OdRxClass* cls) {
  for (const ClassMapping& m : kBlockEntities)
    if (m.desc() == cls) return &m;
  return nullptr;
}

}  // namespace OdDxf::mapping
