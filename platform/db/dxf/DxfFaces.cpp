// The four-cornered entities: 3DFACE (corners in WCS, invisible edges in 70)
// and SOLID and TRACE (corners in the object coordinate system of the
// normal, thickness). A fourth corner the file leaves out repeats the third.
#include "DbPlainClasses.h"
#include "DxfMapping.h"

namespace OdDxf::mapping {

namespace {

template <class T, OdResult (T::*Get)(unsigned, OdGePoint3d&) const, unsigned Index>
OdGePoint3d corner(const T* t) {
  OdGePoint3d p;
  (t->*Get)(Index, p);
  return p;
}

// The corners of codes 10..13; `ocs`: in the object coordinates of the normal.
template <class T, OdResult (T::*Get)(unsigned, OdGePoint3d&) const, void (T::*Set)(unsigned, const OdGePoint3d&)>
void cornerFields(Fields<T>& f, bool ocs) {
  auto normal = [](const T* t) {
    if constexpr (requires { t->normal(); }) return t->normal();
    else return OdGeVector3d::kZAxis;
  };
  auto field = [&]<unsigned I>(std::integral_constant<unsigned, I>) {
    const int code = 10 + int(I);
    auto get = &corner<T, Get, I>;
    auto set = [](T* t, const OdGePoint3d& p) { (t->*Set)(I, p); };
    if (ocs) f.ocsPoint(code, 210, get, set, normal);
    else f.point(code, get, set);
  };
  field(std::integral_constant<unsigned, 0>{});
  field(std::integral_constant<unsigned, 1>{});
  field(std::integral_constant<unsigned, 2>{});
  if (f.reading() && !f.io().has(13)) {
    const OdGePoint3d third = corner<T, Get, 2>(f.object());
    f.apply(12, [&] { (f.object()->*Set)(3, third); });
    return;
  }
  if (!f.reading() && !f.io().has(13) && f.io().mode() == RecordIO::Patch && !f.changed(&corner<T, Get, 3>)) return;
  field(std::integral_constant<unsigned, 3>{});
}

template <class T>
void planarQuadFields(Fields<T>& f) {
  f.subclass("AcDbTrace");
  cornerFields<T, &T::getPointAt, &T::setPointAt>(f, true);
  f.real(39, &T::thickness, &T::setThickness, 0.0, Opt::Optional);
  f.normal(210, &T::normal, &T::setNormal);
}

}  // namespace

void faceFields(Fields<OdDbFace>& f) {
  using F = OdDbFace;
  f.subclass("AcDbFace");
  cornerFields<F, &F::getVertexAt, &F::setVertexAt>(f, false);
  f.integer(70, &F::invisibleEdges, &F::setInvisibleEdges, 0, Opt::Optional);
}

void solidFields(Fields<OdDbSolid>& f) { planarQuadFields(f); }
void traceFields(Fields<OdDbTrace>& f) { planarQuadFields(f); }

}  // namespace OdDxf::mapping
