#include "ZqMatchPolyline.h"
#include "DbPlainClasses.h"
#include <optional>

namespace {

// The width shared by the segments' ends, when all have the same: (start,
// end) of each of count vertices.
template <class WidthsAt>
std::optional<double> commonWidth(unsigned count, WidthsAt widthsAt) {
  std::optional<double> common;
  for (unsigned i = 0; i < count; ++i) {
    double s = 0, e = 0;
    widthsAt(i, s, e);
    if (s != e || (common && *common != s)) return std::nullopt;
    common = s;
  }
  return common;
}

// The segments whose widths count: one per segment, or the single vertex.
unsigned widthVertices(unsigned numVerts, bool closed) {
  if (numVerts < 2) return numVerts;
  return closed ? numVerts : numVerts - 1;
}

std::optional<double> uniformWidth(const OdDbPolyline* p) {
  if (p->getConstantWidth() != 0) return p->getConstantWidth();
  if (p->numVerts() == 0) return p->getConstantWidth();
  return commonWidth(widthVertices(p->numVerts(), p->isClosed()),
                     [&](unsigned i, double& s, double& e) { p->getWidthsAt(i, s, e); });
}

std::optional<double> uniformWidth(const OdDb2dPolyline* p) {
  if (p->numVerts() == 0) {
    if (p->defaultStartWidth() == p->defaultEndWidth()) return p->defaultStartWidth();
    return std::nullopt;
  }
  return commonWidth(widthVertices(p->numVerts(), p->isClosed()), [&](unsigned i, double& s, double& e) {
    s = p->vertexAt(i)->startWidth();
    e = p->vertexAt(i)->endWidth();
  });
}

}  // namespace

int MatchPolylineProperties(const OdDbEntity* source, OdDbObject* target) {
  bool plinegen = false;
  std::optional<double> width;
  if (auto* lw = ZqReadable<OdDbPolyline>(source)) {
    plinegen = lw->hasPlinegen();
    width = uniformWidth(lw);
  } else if (auto* p2d = ZqReadable<OdDb2dPolyline>(source)) {
    plinegen = p2d->isLinetypeGenerationOn();
    width = uniformWidth(p2d);
  } else {
    return kZqSetRefused;
  }

  if (auto* lw = ZqWritable<OdDbPolyline>(target)) {
    lw->setPlinegen(plinegen);
    if (width) lw->setConstantWidth(*width);
    return kZqSetApplied;
  }
  if (auto* p2d = ZqWritable<OdDb2dPolyline>(target)) {
    if (plinegen) p2d->setLinetypeGenerationOn();
    else p2d->setLinetypeGenerationOff();
    if (width) {
      p2d->setDefaultStartWidth(*width);
      p2d->setDefaultEndWidth(*width);
      for (unsigned i = 0; i < p2d->numVerts(); ++i) {
        OdDb2dVertex* v = p2d->vertexForWrite(i);
        v->setStartWidth(*width);
        v->setEndWidth(*width);
      }
    }
    return kZqSetApplied;
  }
  return kZqSetRefused;
}
