#pragma once
// Field tables: a class's DXF fields as one constant array of rows
// (group code, kind, the member's getter and setter, default, whether a new
// record may leave it out), from which reading, patching and creating are
// all driven by mapFields(). Only what does not fit a row - subclass
// markers, repeated groups, values that hold together - is code, next to
// the table.
//
//   using T = OdDbText;
//   constexpr Field<T> kRows[] = {
//   //  code kind         member                                             default opt
//     {39,  Kind::Real,  member<T, &T::thickness, &T::setThickness>(),     0,      Opt::Optional},
//     ...
//   };
//   mapFields(f, kRows);
#include "DxfMapping.h"

#include <QtMath>

#include <span>
#include <variant>

namespace OdDxf::mapping {

// A member's value as the table moves it: numbers (flags, enumerations,
// booleans included) as doubles, vectors as points, records by id.
using FieldValue = std::variant<double, OdString, OdGePoint3d, OdDbObjectId>;

template <class T>
struct Access {
  FieldValue (*get)(const T*) = nullptr;
  void (*set)(T*, const FieldValue&) = nullptr;
};

namespace detail_fields {

template <class M>
struct MemberTraits;
template <class C, class R>
struct MemberTraits<R (C::*)() const> {
  using Class = C;
  using Result = std::decay_t<R>;
};
template <class C, class A>
struct MemberTraits<void (C::*)(A)> {
  using Class = C;
  using Arg = std::decay_t<A>;
};

template <class V>
FieldValue toField(const V& v) {
  if constexpr (std::is_same_v<V, OdGeVector3d>) return OdGePoint3d(v.x, v.y, v.z);
  else if constexpr (std::is_same_v<V, OdGePoint3d> || std::is_same_v<V, OdString> || std::is_same_v<V, OdDbObjectId>)
    return v;
  else return double(v);
}

template <class V>
V fromField(const FieldValue& f) {
  if constexpr (std::is_same_v<V, OdGeVector3d>) {
    const OdGePoint3d p = std::get<OdGePoint3d>(f);
    return OdGeVector3d(p.x, p.y, p.z);
  } else if constexpr (std::is_same_v<V, OdGePoint3d> || std::is_same_v<V, OdString> ||
                       std::is_same_v<V, OdDbObjectId>) {
    return std::get<V>(f);
  } else if constexpr (std::is_same_v<V, bool>) {
    return std::get<double>(f) != 0;
  } else if constexpr (std::is_floating_point_v<V>) {
    return static_cast<V>(std::get<double>(f));
  } else {
    // Integers and enumerations: a value beyond int is refused, not wrapped.
    const double d = std::get<double>(f);
    if (!(d >= -2147483648.0 && d <= 2147483647.0))
      throw OdError(eInvalidInput, OdString(QStringLiteral("%1 is out of range").arg(d, 0, 'g', 17)));
    return static_cast<V>(static_cast<int>(d));
  }
}

}  // namespace detail_fields

// The getter/setter pair of a member, for table rows. T is the class the
// table maps (the members may be inherited).
template <class T, auto Get, auto Set>
constexpr Access<T> member() {
  using S = detail_fields::MemberTraits<decltype(Set)>;
  return Access<T>{
      [](const T* o) { return detail_fields::toField((o->*Get)()); },
      [](T* o, const FieldValue& v) { (o->*Set)(detail_fields::fromField<typename S::Arg>(v)); }};
}

enum class Kind {
  Real,       // a double
  Angle,      // degrees in the file, radians in memory
  Int,        // an integer (16, 32 bit) or enumeration
  Flag,       // one bit (`def`) of an integer group; a boolean in memory
  String,     // text
  Point,      // a WCS point or vector of code, code+10, code+20
  OcsPoint,   // a point the file keeps in the object coordinate system of the
              // normal (see mapFields' `normal`), the object in WCS
  Normal,     // the extrusion direction: a unit vector, (0,0,1) by default
  Name,       // a symbol table record by name (`table` says which); the
              // record named `defName` when absent
  Handle,     // an object by handle
};

template <class T>
struct Field {
  int code;
  Kind kind;
  Access<T> access;
  double def = 0;                        // default; the bit for Kind::Flag
  Opt opt = Opt::Required;
  NameIndex Context::*table = nullptr;   // Kind::Name
  const char* defName = nullptr;         // Kind::Name
};

// Reads, patches or creates the fields of the rows, in order. `normal`
// gives the object's normal for Kind::OcsPoint rows (its group code 210).
template <class T>
void mapFields(Fields<T>& f, std::span<const Field<T>> rows, Access<T> normal = {}) {
  RecordIO& io = f.io();
  Context& ctx = io.ctx();
  for (const Field<T>& row : rows) {
    const Access<T> a = row.access;
    auto getD = [&](const T* o) { return std::get<double>(a.get(o)); };
    auto getP = [&](const T* o) { return std::get<OdGePoint3d>(a.get(o)); };
    auto getS = [&](const T* o) { return std::get<OdString>(a.get(o)); };
    auto getId = [&](const T* o) { return std::get<OdDbObjectId>(a.get(o)); };
    switch (row.kind) {
      case Kind::Real:
        f.real(row.code, getD, [&](T* o, double v) { a.set(o, v); }, row.def, row.opt);
        break;
      case Kind::Angle:
        f.real(
            row.code, [&](const T* o) { return qRadiansToDegrees(getD(o)); },
            [&](T* o, double deg) { a.set(o, qDegreesToRadians(deg)); }, qRadiansToDegrees(row.def), row.opt);
        break;
      case Kind::Int:
        f.integer(
            row.code, [&](const T* o) { return qint64(getD(o)); }, [&](T* o, qint64 v) { a.set(o, double(v)); },
            qint64(row.def), row.opt);
        break;
      case Kind::Flag:
        f.flag(
            row.code, int(row.def), [&](const T* o) { return getD(o) != 0; },
            [&](T* o, bool v) { a.set(o, v ? 1.0 : 0.0); });
        break;
      case Kind::String:
        f.string(row.code, getS, [&](T* o, const OdString& v) { a.set(o, v); }, row.opt);
        break;
      case Kind::Point:
        f.point(row.code, getP, [&](T* o, const OdGePoint3d& p) { a.set(o, p); }, row.opt);
        break;
      case Kind::OcsPoint: {
        auto n = [&](const T* o) {
          const OdGePoint3d p = std::get<OdGePoint3d>(normal.get(o));
          return OdGeVector3d(p.x, p.y, p.z);
        };
        f.ocsPoint(row.code, 210, getP, [&](T* o, const OdGePoint3d& p) { a.set(o, p); }, n, row.opt);
        break;
      }
      case Kind::Normal: {
        auto getV = [&](const T* o) {
          const OdGePoint3d p = getP(o);
          return OdGeVector3d(p.x, p.y, p.z);
        };
        f.normal(row.code, getV, [&](T* o, const OdGeVector3d& v) { a.set(o, OdGePoint3d(v.x, v.y, v.z)); });
        break;
      }
      case Kind::Name: {
        NameIndex& index = ctx.*row.table;
        const QString defName = QString::fromLatin1(row.defName ? row.defName : "");
        if (io.reading()) {
          const int at = io.find(row.code);
          const QString name = at >= 0 ? io.record().str(at) : defName;
          const OdDbObjectId id = name.isEmpty() ? OdDbObjectId() : index.find(name);
          if (id.isNull() && !name.isEmpty())
            io.warn(at, QStringLiteral("group code %1 names '%2', which the drawing lacks; none used").arg(row.code).arg(name));
          f.apply(row.code, [&] { a.set(f.object(), id); });
        } else if (f.changed(getId, row.opt)) {
          const OdDbObjectId id = getId(f.object());
          if (id.isNull()) io.remove(row.code);
          else io.putString(row.code, recordName(id));
        } else {
          io.skip(row.code);
        }
        break;
      }
      case Kind::Handle: {
        if (io.reading()) {
          const quint64 h = io.handle(row.code);
          const OdDbObjectId id = h ? ctx.db->getOdDbObjectId(OdDbHandle(h)) : OdDbObjectId();
          f.apply(row.code, [&] { a.set(f.object(), id); });
        } else if (f.changed(getId, row.opt)) {
          const OdDbObjectId id = getId(f.object());
          if (id.isNull()) io.remove(row.code);
          else io.putHandle(row.code, id.getHandle().value());
        } else {
          io.skip(row.code);
        }
        break;
      }
    }
  }
}

template <class T, size_t N>
void mapFields(Fields<T>& f, const Field<T> (&rows)[N], Access<T> normal = {}) {
  mapFields(f, std::span<const Field<T>>(rows, N), normal);
}

}  // namespace OdDxf::mapping
