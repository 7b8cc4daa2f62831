// DIMSTYLE records: the name, then one field per dimension variable of
// DimVars.def, in the order the records list their group codes. Nothing here
// names a variable: the table gives each one's code, kind and release.
//
// Two things do not fit the table and are code below it: group 70 is both
// the record's flags (first) and DIMTFILLCLR (second); and records are
// referred to by handle, which the reader resolves once every table it
// refers to is read (DIMSTYLE records are read last).
#include "DbPlainClasses.h"
#include "DxfMapping.h"

#include <QtMath>

#include <algorithm>
#include <array>

namespace OdDxf::mapping {
namespace {

using namespace OdDbDimVar;

// Where a group code stands in a DIMSTYLE record: 3..7, 40..50, 140..148,
// 69..79, 90, 170..179, 270..294, 340..347, 371..372.
int rank(int code) {
  if (code >= 69 && code <= 90) return 1500 + code;
  return code * 10;
}

// The variables that have a group code, in record order.
const std::vector<Id>& recordOrder() {
  static const std::vector<Id> order = [] {
    std::vector<Id> v;
    for (int k = 0; k < kCount; ++k)
      if (info(Id(k)).code) v.push_back(Id(k));
    std::stable_sort(v.begin(), v.end(), [](Id a, Id b) { return rank(info(a).code) < rank(info(b).code); });
    return v;
  }();
  return order;
}

// The tag of a variable: DIMTFILLCLR is the second 70, the flags the first.
int tagOf(const RecordIO& io, const Info& i) {
  const int first = io.find(i.code);
  if (i.code != 70 || first < 0) return i.code == 70 ? -1 : first;
  return io.find(70, first + 1);
}

// Moves the insertion point past a variable's tag (never back).
void advance(RecordIO& io, const Info& i, int at) {
  if (i.code == 70) io.moveTo(at + 1);
  else io.skip(i.code);
}

OdCmColor colorOf(qint64 aci) {
  if (aci == 0) return OdCmColor::byBlock();
  if (aci == 256) return OdCmColor::byLayer();
  return OdCmColor::fromIndex(int(aci));
}

// The value of tag `at` as the variable's kind; refuses what is not a number.
Value readValue(RecordIO& io, const Info& i, int at) {
  Record& r = io.record();
  switch (i.kind) {
    case Kind::Real: return io.realAt(at);
    case Kind::Angle: return qDegreesToRadians(io.realAt(at));
    case Kind::Int:
    case Kind::Char:
    case Kind::LineWeight: return int(io.integerAt(at));
    case Kind::Bool: return io.integerAt(at) != 0;
    case Kind::String: return OdString(r.str(at));
    case Kind::Color: {
      const qint64 aci = io.integerAt(at);
      if (aci < 0 || aci > 256) return OdCmColor();  // check() refuses it below
      return colorOf(aci);
    }
    default: {
      bool ok = false;
      const quint64 h = r.at(at).handle(&ok);
      if (!ok) io.refuse(at, QStringLiteral("group code %1 value '%2' is not a handle").arg(i.code).arg(r.str(at).left(40)));
      const OdDbObjectId id = io.ctx().db->getOdDbObjectId(OdDbHandle(h));
      if (h && id.isNull())
        io.warn(at, QStringLiteral("%1 refers to handle %2, which is no object; no record used")
                        .arg(i.upperName().qstring(), QString::number(h, 16).toUpper()));
      return id;
    }
  }
}

void writeValue(RecordIO& io, const Info& i, const Value& v, int at) {
  Record& r = io.record();
  if (i.isReference()) {
    const OdDbObjectId id = std::get<OdDbObjectId>(v);
    if (id.isNull()) {
      if (at >= 0) io.removeAt(at, 1);
      return;
    }
  }
  if (at < 0) at = io.insertTag(i.code);
  else advance(io, i, at);
  switch (i.kind) {
    case Kind::Real: {
      bool ok = false;
      const double old = r.at(at).real(&ok);
      if (!(ok && same(old, std::get<double>(v)))) r.setReal(at, std::get<double>(v));
      break;
    }
    case Kind::Angle: r.setReal(at, qRadiansToDegrees(std::get<double>(v))); break;
    case Kind::Int:
    case Kind::Char:
    case Kind::LineWeight: r.setInteger(at, std::get<int>(v)); break;
    case Kind::Bool: r.setInteger(at, std::get<bool>(v) ? 1 : 0); break;
    case Kind::String: r.setString(at, std::get<OdString>(v).qstring()); break;
    case Kind::Color: r.setInteger(at, std::get<OdCmColor>(v).colorIndex()); break;
    default: r.setHandle(at, std::get<OdDbObjectId>(v).getHandle().value()); break;
  }
}

}  // namespace

void dimStyleFields(Fields<OdDbDimStyleTableRecord>& f) {
  RecordIO& io = f.io();
  OdDbDimStyleTableRecord* style = f.object();
  const OdDbDimStyleTableRecord* before = f.before();
  const bool create = io.mode() == RecordIO::Create;
  f.subclass("AcDbDimStyleTableRecord");
  f.string(2, &OdDbDimStyleTableRecord::getName, &OdDbDimStyleTableRecord::setName);
  if (create) io.putInteger(70, 0);
  else io.skip(70);

  for (Id id : recordOrder()) {
    const Info& i = info(id);
    const int at = tagOf(io, i);
    if (io.reading()) {
      if (at < 0) continue;
      const Value v = readValue(io, i, at);
      OdString why;
      if (!check(id, v, &why))
        io.warn(at, QStringLiteral("%1; the default %2 kept").arg(why.qstring(), toString(id, i.defaultValue()).qstring()));
      else
        style->setDimVar(id, v);
      continue;
    }
    const Value& now = style->dimVar(id);
    const bool write = create ? !(i.isReference() && std::get<OdDbObjectId>(now).isNull()) && io.supports(i.since)
                              : !(now == before->dimVar(id));
    if (!write) {
      if (at >= 0) advance(io, i, at);
      continue;
    }
    if (!io.supports(i.since))
      throw MapError{QStringLiteral("dimension style '%1': %2 cannot be written to release AC%3")
                         .arg(style->getName().qstring(), i.upperName().qstring())
                         .arg(io.ctx().release)};
    writeValue(io, i, now, at);
  }
}

}  // namespace OdDxf::mapping
