#include "DrawingView.h"
#include "DbCircle.h"
#include "DbArc.h"
#include "DbDimension.h"
#include "DbBlockReference.h"
#include "DbHatch.h"
#include "DbLine.h"
#include "DbMText.h"
#include "DbPlainClasses.h"
#include "DbPoint.h"
#include "DbPolyline.h"
#include "DbSolid.h"
#include "DbText.h"
#include "DbRay.h"
#include "DbXline.h"
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

namespace {
constexpr int kMaxBlockDepth = 8;
constexpr double kPi = 3.14159265358979323846;

QPointF xy(const OdGePoint3d& p) { return {p.x, p.y}; }

// The grid cell of a coordinate, clamped to the grid before it becomes an
// integer (a coordinate far outside must not overflow).
int cellOf(double offset, double size, int cells) {
  const double c = std::floor(offset / size);
  if (!(c > 0)) return 0;  // NaN too
  return c >= cells - 1 ? cells - 1 : int(c);
}

// Whether two boxes meet, boxes without area (a line, a point) included.
bool meets(const QRectF& a, const QRectF& b) {
  return a.left() <= b.right() && b.left() <= a.right() && a.top() <= b.bottom() && b.top() <= a.bottom();
}

// The text font measured at a large size; text is scaled from it.
const QFont& textFont() {
  static const QFont f = [] {
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(100);
    return font;
  }();
  return f;
}
double capHeight() {
  static const double h = [] {
    const double c = QFontMetricsF(textFont()).capHeight();
    return c > 0 ? c : 70.0;
  }();
  return h;
}

QRgb aciColor(int aci) {
  uint8_t r = 255, g = 255, b = 255;
  if (aci >= 1 && aci <= 255) OdCmColor::paletteRGB(aci, r, g, b);
  return qRgb(r, g, b);
}

// The colour an entity is drawn in: its own, or its layer's for ByLayer.
QRgb colorOf(const OdDbEntity* e) {
  const OdCmColor c = e->color();
  if (c.isByColor()) return qRgb(c.red(), c.green(), c.blue());
  if (c.isByLayer()) {
    OdDbObjectPtr layer = e->layerId().openObject();
    if (auto* l = odrxCast<OdDbLayerTableRecord>(layer.get())) {
      const OdCmColor lc = l->color();
      if (lc.isByColor()) return qRgb(lc.red(), lc.green(), lc.blue());
      return aciColor(lc.colorIndex());
    }
    return aciColor(7);
  }
  if (c.isByBlock()) return aciColor(7);
  return aciColor(c.colorIndex());
}

// Points of an arc segment of a polyline from p to q with a bulge.
void bulgeArc(const QPointF& p, const QPointF& q, double bulge, std::vector<QPointF>& out) {
  const QPointF d = q - p;
  const QPointF mid = (p + q) / 2;
  const QPointF normal(-d.y(), d.x());
  const QPointF center = mid + normal * ((1 - bulge * bulge) / (4 * bulge));
  const double radius = std::hypot(p.x() - center.x(), p.y() - center.y());
  const double start = std::atan2(p.y() - center.y(), p.x() - center.x());
  const double sweep = 4 * std::atan(bulge);
  const int n = std::clamp(int(std::ceil(std::fabs(sweep) / (kPi / 24))), 2, 96);
  for (int i = 1; i < n; ++i) {
    const double a = start + sweep * i / n;
    out.emplace_back(center.x() + radius * std::cos(a), center.y() + radius * std::sin(a));
  }
  out.push_back(q);
}

// Multiline text without its formatting codes: paragraphs become lines.
QString plainMText(const QString& contents) {
  QString s = contents;
  s.replace(QStringLiteral("\\P"), QStringLiteral("\n"));
  static const QRegularExpression codes(QStringLiteral("\\\\[A-Za-z][^;\\\\{}]*;|\\\\[LlOoKk]|[{}]"));
  s.remove(codes);
  return s;
}
}  // namespace

// Boxes of lines and points have no area; QRectF's union would drop them.
void ZqDrawingGeometry::grow(Item& item, const QRectF& r) {
  if (!item.hasBox) {
    item.box = r;
    item.hasBox = true;
    return;
  }
  item.box = QRectF(QPointF(std::min(item.box.left(), r.left()), std::min(item.box.top(), r.top())),
                    QPointF(std::max(item.box.right(), r.right()), std::max(item.box.bottom(), r.bottom())));
}

void ZqDrawingGeometry::addPoly(Item& item, const std::vector<QPointF>& given, bool closed, double width) {
  // Points that are not finite (a drawing may hold nan) are left out.
  std::vector<QPointF> pts;
  pts.reserve(given.size());
  for (const QPointF& q : given)
    if (std::isfinite(q.x()) && std::isfinite(q.y())) pts.push_back(q);
  if (!std::isfinite(width) || width < 0) width = 0;
  if (pts.empty()) return;
  Poly p;
  p.first = quint32(m_points.size());
  p.count = quint32(pts.size());
  p.closed = closed;
  p.width = float(width);
  m_points.insert(m_points.end(), pts.begin(), pts.end());
  if (item.polyCount == 0) item.firstPoly = quint32(m_polys.size());
  m_polys.push_back(p);
  ++item.polyCount;
  const double half = width / 2;
  for (const QPointF& q : pts) grow(item, QRectF(q.x() - half, q.y() - half, width, width));
}

void ZqDrawingGeometry::addText(Item& item, const Text& text) {
  if (text.text.trimmed().isEmpty() || !(text.height > 0) || !std::isfinite(text.height) || !std::isfinite(text.position.x()) ||
      !std::isfinite(text.position.y()) || !std::isfinite(text.rotation) || !std::isfinite(text.widthFactor))
    return;
  if (item.textCount == 0) item.firstText = qint32(m_texts.size());
  m_texts.push_back(text);
  ++item.textCount;
  // The box of the text from the font's metrics, turned with the text.
  const QFontMetricsF fm(textFont());
  const double s = text.height / capHeight();
  double width = 0;
  const QStringList lines = text.text.split('\n');
  for (const QString& l : lines) width = std::max(width, fm.horizontalAdvance(l));
  const QRectF local(0, -fm.ascent() * s, width * s * text.widthFactor, (fm.ascent() + fm.descent() + (lines.size() - 1) * fm.lineSpacing()) * s);
  QTransform t;
  t.translate(text.position.x(), text.position.y());
  t.rotateRadians(text.rotation);
  t.scale(1, -1);  // text runs down its lines; the drawing's Y runs up
  grow(item, t.mapRect(local));
}

void ZqDrawingGeometry::extract(OdDbDatabase* db, const OdDbEntity* e, Item& item, int depth) {
  std::vector<QPointF> pts;
  // A point of the entity as it is placed (through the block references
  // it is drawn by).
  auto xy = [this](const OdGePoint3d& p) { return ::xy(m_place * p); };
  if (auto* line = odrxCast<OdDbLine>(e)) {
    addPoly(item, {xy(line->startPoint()), xy(line->endPoint())}, false);
  } else if (auto* pl = odrxCast<OdDbPolyline>(e)) {
    const unsigned n = pl->numVerts();
    const bool closed = pl->isClosed();
    bool widths = pl->getConstantWidth() > 0;
    for (unsigned i = 0; i < n && !widths; ++i) widths = pl->getStartWidthAt(i) > 0 || pl->getEndWidthAt(i) > 0;
    OdGePoint3d p;
    auto at = [&](unsigned i) {
      pl->getPointAt(i % n, p);
      return xy(p);
    };
    if (n == 1) addPoly(item, {at(0), at(0)}, false);
    const unsigned segments = closed ? n : (n ? n - 1 : 0);
    if (!widths) {
      if (n) pts.push_back(at(0));
      for (unsigned i = 0; i < segments; ++i) {
        const double b = pl->getBulgeAt(i);
        if (std::fabs(b) > 1e-12) bulgeArc(at(i), at(i + 1), b, pts);
        else pts.push_back(at(i + 1));
      }
      if (closed && pts.size() > 1) pts.pop_back();
      addPoly(item, pts, closed);
    } else {
      // Wide segments: each drawn with its mean width.
      for (unsigned i = 0; i < segments; ++i) {
        pts = {at(i)};
        const double b = pl->getBulgeAt(i);
        if (std::fabs(b) > 1e-12) bulgeArc(at(i), at(i + 1), b, pts);
        else pts.push_back(at(i + 1));
        const double w = pl->getConstantWidth() > 0 ? pl->getConstantWidth() : (pl->getStartWidthAt(i) + pl->getEndWidthAt(i)) / 2;
        addPoly(item, pts, false, w);
      }
    }
  } else if (auto* text = odrxCast<OdDbText>(e)) {
    const OdGePoint3d at = text->isDefaultAlignment() ? text->position() : text->alignmentPoint();
    addText(item, {text->textString().qstring(), xy(at), text->height(), text->rotation(), text->widthFactor()});
  } else if (auto* mt = odrxCast<OdDbMText>(e)) {
    addText(item, {plainMText(mt->contents().qstring()), xy(mt->location()) - QPointF(0, mt->textHeight()), mt->textHeight(), mt->rotation(), 1.0});
  } else if (auto* dim = odrxCast<OdDbDimension>(e)) {
    // A dimension draws through its block of graphics.
    OdDbObjectPtr table = db->getBlockTableId().openObject();
    auto* blocks = odrxCast<OdDbBlockTable>(table.get());
    const OdDbObjectId blockId = blocks && !dim->dimBlockName().isEmpty() ? blocks->getAt(dim->dimBlockName()) : OdDbObjectId();
    OdDbObjectPtr block = blockId.openObject();
    if (auto* btr = odrxCast<OdDbBlockTableRecord>(block.get()); btr && depth < kMaxBlockDepth)
      for (const OdDbObjectId& id : btr->entityIds()) {
        OdDbObjectPtr sub = id.openObject();
        if (auto* se = odrxCast<OdDbEntity>(sub.get())) extract(db, se, item, depth + 1);
      }
  } else if (auto* ref = odrxCast<OdDbBlockReference>(e)) {
    // A block reference draws its block's entities where it places them.
    OdDbObjectPtr block = ref->blockTableRecord().openObject();
    if (auto* btr = odrxCast<OdDbBlockTableRecord>(block.get()); btr && depth < kMaxBlockDepth) {
      const OdGeMatrix3d outer = m_place;
      m_place = outer * ref->blockTransform();
      for (const OdDbObjectId& id : btr->entityIds()) {
        OdDbObjectPtr sub = id.openObject();
        if (auto* se = odrxCast<OdDbEntity>(sub.get())) extract(db, se, item, depth + 1);
      }
      for (const OdDbObjectId& id : ref->attributeIds()) {
        OdDbObjectPtr sub = id.openObject();
        m_place = outer;  // attributes are placed in the drawing already
        if (auto* se = odrxCast<OdDbEntity>(sub.get())) extract(db, se, item, depth + 1);
      }
      m_place = outer;
    }
  } else if (auto* hatch = odrxCast<OdDbHatch>(e)) {
    // A hatch as the outlines of its loops, in its plane at its elevation.
    const OdGeMatrix3d toWorld = OdGeMatrix3d::planeToWorld(hatch->normal());
    auto at = [&](double x, double y) { return xy(toWorld * OdGePoint3d(x, y, hatch->elevation())); };
    for (int l = 0; l < hatch->numLoops(); ++l) {
      const OdDbHatch::Loop& loop = hatch->loopAt(l);
      pts.clear();
      if (loop.type & OdDbHatch::kPolyline) {
        const int n = int(loop.vertices.length());
        for (int v = 0; v < n; ++v) {
          const OdGePoint2d& a = loop.vertices[v];
          if (pts.empty()) pts.push_back(at(a.x, a.y));
          if (!loop.closed && v == n - 1) break;
          const OdGePoint2d& b = loop.vertices[(v + 1) % n];
          const double bulge = v < int(loop.bulges.length()) ? loop.bulges[v] : 0.0;
          if (std::fabs(bulge) > 1e-12) {
            std::vector<QPointF> arc{QPointF(a.x, a.y)};
            bulgeArc(QPointF(a.x, a.y), QPointF(b.x, b.y), bulge, arc);
            for (size_t k = 1; k < arc.size(); ++k) pts.push_back(at(arc[k].x(), arc[k].y()));
          } else {
            pts.push_back(at(b.x, b.y));
          }
        }
      } else {
        for (const OdDbHatch::Edge& edge : loop.edges) {
          if (edge.type == OdDbHatch::kLine) {
            pts.push_back(at(edge.start.x, edge.start.y));
            pts.push_back(at(edge.end.x, edge.end.y));
          } else if (edge.type == OdDbHatch::kCirArc || edge.type == OdDbHatch::kEllArc) {
            double s = edge.startAngle, t = edge.endAngle;
            while (t < s) t += 2 * kPi;
            const OdGeVector2d major = edge.type == OdDbHatch::kCirArc ? OdGeVector2d(edge.radius, 0) : edge.majorAxis;
            const OdGeVector2d minor = OdGeVector2d(-major.y, major.x) * (edge.type == OdDbHatch::kCirArc ? 1.0 : edge.ratio);
            const int n = std::clamp(int(std::ceil((t - s) / (kPi / 32))), 2, 128);
            for (int k = 0; k <= n; ++k) {
              // A clockwise arc retraces the counter-clockwise one mirrored.
              const double a = edge.ccw ? s + (t - s) * k / n : -(s + (t - s) * k / n);
              const OdGePoint2d p = edge.center + major * std::cos(a) + minor * std::sin(a);
              pts.push_back(at(p.x, p.y));
            }
          } else {
            // Splines by their fit points, or else their control polygon.
            const OdArray<OdGePoint2d>& through = edge.fitPoints.isEmpty() ? edge.controlPoints : edge.fitPoints;
            for (const OdGePoint2d& p : through) pts.push_back(at(p.x, p.y));
          }
        }
      }
      if (pts.size() > 1) addPoly(item, pts, loop.closed);
    }
  } else if (auto* point = odrxCast<OdDbPoint>(e)) {
    addPoly(item, {xy(point->position()), xy(point->position())}, false);
  } else if (auto* face = odrxCast<OdDbFace>(e)) {
    OdGePoint3d p;
    for (unsigned i = 0; i < 4; ++i)
      if (face->getVertexAt(i, p) == eOk) pts.push_back(xy(p));
    addPoly(item, pts, true);
  } else if (auto* quad = dynamic_cast<const OdDbQuadCorners*>(e)) {
    // Solids and traces keep their corners in the order 0, 1, 3, 2 around.
    OdGePoint3d p;
    for (unsigned i : {0u, 1u, 3u, 2u})
      if (quad->getPointAt(i, p) == eOk) pts.push_back(xy(p));
    addPoly(item, pts, true);
  } else if (odrxCast<OdDbRay>(e) || odrxCast<OdDbXline>(e)) {
    auto* curve = odrxCast<OdDbCurve>(e);
    OdGePoint3d a, b;
    if (curve->getPointAtParam(0, a) == eOk && curve->getPointAtParam(1, b) == eOk) {
      const QPointF base = xy(a), dir = xy(b) - base;
      const double far = 1e7;
      addPoly(item, {odrxCast<OdDbXline>(e) ? base - dir * far : base, base + dir * far}, false);
      item.unbounded = true;
    }
  } else if (auto* curve = odrxCast<OdDbCurve>(e)) {
    double s = 0, t = 0;
    if (curve->getStartParam(s) == eOk && curve->getEndParam(t) == eOk && std::isfinite(s) && std::isfinite(t) && t > s) {
      // Arcs and ellipses run over an angle; other curves one unit per span.
      const bool angular = odrxCast<OdDbArc>(e) || odrxCast<OdDbCircle>(e) || e->isA()->dxfName() == OdString("ELLIPSE");
      const int n = angular ? std::clamp(int(std::ceil((t - s) / (kPi / 32))), 4, 256) : std::clamp(int(std::ceil((t - s) * 16)), 16, 20000);
      OdGePoint3d p;
      for (int i = 0; i <= n; ++i)
        if (curve->getPointAtParam(s + (t - s) * i / n, p) == eOk) pts.push_back(xy(p));
      addPoly(item, pts, curve->isClosed());
    }
  }
  if (depth == 0 && item.polyCount == 0 && item.textCount == 0) {
    OdGeExtents3d ext;
    if (e->getGeomExtents(ext)) {
      const QPointF lo = xy(ext.minPoint()), hi = xy(ext.maxPoint());
      addPoly(item, {lo, {hi.x(), lo.y()}, hi, {lo.x(), hi.y()}}, true);
      item.boxOnly = true;
    }
  }
}

void ZqDrawingGeometry::build(OdDbDatabase* db, const OdDbObjectId& block) {
  m_db = db;
  m_items.clear();
  m_points.clear();
  m_polys.clear();
  m_texts.clear();
  m_byId.clear();
  OdDbObjectPtr obj = block.openObject();
  auto* btr = odrxCast<OdDbBlockTableRecord>(obj.get());
  if (!btr) {
    buildGrid();
    return;
  }
  const OdDbObjectIdArray ids = btr->entityIds();
  m_items.reserve(size_t(ids.size()));
  for (const OdDbObjectId& id : ids) {
    OdDbObjectPtr o = id.openObject();
    auto* e = odrxCast<OdDbEntity>(o.get());
    if (!e || !e->visibility()) continue;
    Item item;
    item.id = id;
    item.color = colorOf(e);
    extract(db, e, item, 0);
    if (item.polyCount == 0 && item.textCount == 0) continue;
    m_byId.insert(id.getHandle().value(), int(m_items.size()));
    m_items.push_back(item);
  }
  buildGrid();
}

void ZqDrawingGeometry::update(const OdDbObjectIdArray& ids) {
  for (const OdDbObjectId& id : ids) {
    const int i = itemOf(id);
    if (i < 0) continue;
    Item& item = m_items[size_t(i)];
    OdDbObjectPtr o = id.openObject();
    auto* e = odrxCast<OdDbEntity>(o.get());
    // The old outlines stay unused in the arrays; the item points at new ones.
    item.polyCount = 0;
    item.textCount = 0;
    item.firstText = -1;
    item.box = QRectF();
    item.hasBox = false;
    item.boxOnly = item.unbounded = false;
    if (!e || o->isErased() || !e->visibility()) continue;
    item.color = colorOf(e);
    extract(m_db, e, item, 0);
    index(i);
  }
}

void ZqDrawingGeometry::buildGrid() {
  Item all;
  for (const Item& it : m_items)
    if (!it.unbounded && it.hasBox) grow(all, it.box);
  m_extents = all.hasBox ? all.box : QRectF(0, 0, 1, 1);
  // A grid needs some breadth in both directions.
  if (m_extents.width() <= 0) m_extents.adjust(-0.5, 0, 0.5, 0);
  if (m_extents.height() <= 0) m_extents.adjust(0, -0.5, 0, 0.5);
  const int side = std::clamp(int(std::sqrt(double(m_items.size()) / 4)), 1, 1024);
  double aspect = m_extents.width() / std::max(m_extents.height(), 1e-12);
  if (!std::isfinite(aspect) || aspect <= 0) aspect = 1;
  m_cols = int(std::clamp(side * std::sqrt(aspect), 1.0, 2048.0));
  m_rows = int(std::clamp(side / std::sqrt(aspect), 1.0, 2048.0));
  m_cellW = std::max(m_extents.width() / m_cols, 1e-12);
  m_cellH = std::max(m_extents.height() / m_rows, 1e-12);
  m_cells.assign(size_t(m_cols) * size_t(m_rows), {});
  m_large.clear();
  for (int i = 0; i < int(m_items.size()); ++i) index(i);
}

void ZqDrawingGeometry::index(int i) {
  const Item& it = m_items[size_t(i)];
  if (m_stamp.size() < m_items.size()) m_stamp.resize(m_items.size(), 0);
  const QRectF b = it.box;
  const int c0 = cellOf(b.left() - m_extents.left(), m_cellW, m_cols);
  const int c1 = cellOf(b.right() - m_extents.left(), m_cellW, m_cols);
  const int r0 = cellOf(b.top() - m_extents.top(), m_cellH, m_rows);
  const int r1 = cellOf(b.bottom() - m_extents.top(), m_cellH, m_rows);
  // Items across many cells, or outside the grid after an edit, are looked at by every query.
  const bool outside = b.left() < m_extents.left() || b.right() > m_extents.right() || b.top() < m_extents.top() ||
                       b.bottom() > m_extents.bottom();
  if (it.unbounded || outside || (c1 - c0 + 1) * (r1 - r0 + 1) > 64) {
    m_large.push_back(quint32(i));
    return;
  }
  for (int r = r0; r <= r1; ++r)
    for (int c = c0; c <= c1; ++c) m_cells[size_t(r) * size_t(m_cols) + size_t(c)].push_back(quint32(i));
}

std::vector<int> ZqDrawingGeometry::query(const QRectF& rect) const {
  std::vector<int> out;
  if (m_items.empty()) return out;
  if (m_stamp.size() < m_items.size()) m_stamp.resize(m_items.size(), 0);
  if (++m_query == 0) {
    std::fill(m_stamp.begin(), m_stamp.end(), 0);
    m_query = 1;
  }
  auto consider = [&](quint32 i) {
    if (m_stamp[i] == m_query) return;
    m_stamp[i] = m_query;
    const Item& it = m_items[i];
    if (it.polyCount == 0 && it.textCount == 0) return;
    if (it.unbounded || meets(it.box, rect)) out.push_back(int(i));
  };
  for (quint32 i : m_large) consider(i);
  if (meets(m_extents, rect)) {
    const int c0 = cellOf(rect.left() - m_extents.left(), m_cellW, m_cols);
    const int c1 = cellOf(rect.right() - m_extents.left(), m_cellW, m_cols);
    const int r0 = cellOf(rect.top() - m_extents.top(), m_cellH, m_rows);
    const int r1 = cellOf(rect.bottom() - m_extents.top(), m_cellH, m_rows);
    for (int row = r0; row <= r1; ++row)
      for (int c = c0; c <= c1; ++c)
        for (quint32 i : m_cells[size_t(row) * size_t(m_cols) + size_t(c)]) consider(i);
  }
  return out;
}

namespace {
double segmentDistance(const QPointF& p, const QPointF& a, const QPointF& b) {
  const QPointF d = b - a;
  const double len2 = d.x() * d.x() + d.y() * d.y();
  double t = len2 > 0 ? ((p.x() - a.x()) * d.x() + (p.y() - a.y()) * d.y()) / len2 : 0;
  t = std::clamp(t, 0.0, 1.0);
  const QPointF q = a + d * t;
  return std::hypot(p.x() - q.x(), p.y() - q.y());
}
}  // namespace

double ZqDrawingGeometry::distanceTo(const Item& item, const QPointF& at) const {
  double best = std::numeric_limits<double>::infinity();
  for (quint32 k = 0; k < item.polyCount; ++k) {
    const Poly& p = m_polys[item.firstPoly + k];
    const QPointF* pts = m_points.data() + p.first;
    const quint32 segs = p.closed ? p.count : p.count - 1;
    if (p.count == 1) best = std::min(best, segmentDistance(at, pts[0], pts[0]));
    for (quint32 s = 0; s < segs; ++s) best = std::min(best, segmentDistance(at, pts[s], pts[(s + 1) % p.count]) - p.width / 2);
  }
  // Text is picked anywhere inside its box.
  if (item.textCount > 0 && item.box.contains(at)) best = 0;
  return best;
}

int ZqDrawingGeometry::pick(const QPointF& at, double tolerance) const {
  int best = -1;
  double bestDistance = tolerance;
  for (int i : query(QRectF(at.x() - tolerance, at.y() - tolerance, 2 * tolerance, 2 * tolerance))) {
    const double d = distanceTo(m_items[size_t(i)], at);
    if (d <= bestDistance) {
      bestDistance = d;
      best = i;
    }
  }
  return best;
}

std::vector<int> ZqDrawingGeometry::pickWindow(const QRectF& rect, bool crossing) const {
  std::vector<int> out;
  for (int i : query(rect)) {
    const Item& it = m_items[size_t(i)];
    if (it.unbounded && !crossing) continue;
    if (crossing || (rect.left() <= it.box.left() && it.box.right() <= rect.right() && rect.top() <= it.box.top() &&
                     it.box.bottom() <= rect.bottom()))
      out.push_back(i);
  }
  return out;
}

// ---------------------------------------------------------------------------

ZqDrawingView::ZqDrawingView(QWidget* parent) : QWidget(parent) {
  setMouseTracking(false);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(200, 150);
  setAutoFillBackground(false);
}

void ZqDrawingView::setBlock(OdDbDatabase* db, const OdDbObjectId& block) {
  m_db = db;
  m_geometry.build(db, block);
  m_fitted = false;
  zoomExtents();
}

void ZqDrawingView::zoomExtents() {
  const QRectF e = m_geometry.extents();
  m_center = e.center();
  const double w = std::max(e.width(), 1e-9), h = std::max(e.height(), 1e-9);
  m_scale = 0.9 * std::min(width() / w, height() / h);
  if (!std::isfinite(m_scale) || m_scale <= 0) m_scale = 1;
  m_fitted = true;
  update();
}

void ZqDrawingView::setSelection(const OdDbObjectIdArray& ids) {
  m_selection = ids;
  m_selected.clear();
  for (const OdDbObjectId& id : ids) m_selected.insert(id.getHandle().value(), true);
  update();
}

void ZqDrawingView::objectsChanged(const OdDbObjectIdArray& ids) {
  m_geometry.update(ids);
  update();
}

QPointF ZqDrawingView::toScreen(const QPointF& w) const {
  return {width() / 2.0 + (w.x() - m_center.x()) * m_scale, height() / 2.0 - (w.y() - m_center.y()) * m_scale};
}

QPointF ZqDrawingView::toWorld(const QPointF& s) const {
  return {m_center.x() + (s.x() - width() / 2.0) / m_scale, m_center.y() - (s.y() - height() / 2.0) / m_scale};
}

void ZqDrawingView::resizeEvent(QResizeEvent*) {
  if (!m_fitted) zoomExtents();
}

void ZqDrawingView::paintEvent(QPaintEvent*) {
  QPainter p(this);
  p.fillRect(rect(), QColor(33, 40, 48));
  const QPointF a = toWorld(QPointF(0, 0)), b = toWorld(QPointF(width(), height()));
  const QRectF visible = QRectF(a, b).normalized();
  const std::vector<int> items = m_geometry.query(visible);
  const auto& pts = m_geometry.points();
  const auto& polys = m_geometry.polys();
  const auto& texts = m_geometry.texts();
  p.setRenderHint(QPainter::Antialiasing, items.size() < 20000);
  QPolygonF screen;
  // Thin outlines and dots are gathered by colour and drawn in one call each.
  QHash<QRgb, QVector<QLineF>> thin;
  QHash<QRgb, QVector<QPointF>> dots;
  auto flush = [&] {
    for (auto it = thin.begin(); it != thin.end(); ++it) {
      p.setPen(QPen(QColor::fromRgb(it.key()), 0));
      p.drawLines(it.value());
    }
    for (auto it = dots.begin(); it != dots.end(); ++it) {
      p.setPen(QPen(QColor::fromRgb(it.key()), 0));
      p.drawPoints(it.value().constData(), int(it.value().size()));
    }
    thin.clear();
    dots.clear();
  };
  for (int pass = 0; pass < 2; ++pass) {
    // Selected objects last, so that their highlight lies on top.
    for (int i : items) {
      const ZqDrawingGeometry::Item& it = m_geometry.items()[size_t(i)];
      const bool selected = m_selected.contains(it.id.getHandle().value());
      if (selected != (pass == 1)) continue;
      const QColor color = selected ? QColor(80, 170, 255) : QColor::fromRgb(it.color);
      // An object smaller than a pixel is a dot.
      if (!it.unbounded && it.box.width() * m_scale < 1 && it.box.height() * m_scale < 1) {
        dots[color.rgb()].append(toScreen(it.box.center()));
        continue;
      }
      for (quint32 k = 0; k < it.polyCount; ++k) {
        const ZqDrawingGeometry::Poly& poly = polys[it.firstPoly + k];
        screen.resize(qsizetype(poly.count));
        for (quint32 s = 0; s < poly.count; ++s) screen[s] = toScreen(pts[poly.first + s]);
        if (!selected && !it.boxOnly && poly.width * m_scale < 1.5 && poly.count > 1) {
          QVector<QLineF>& batch = thin[color.rgb()];
          for (quint32 s = 0; s + 1 < poly.count; ++s) batch.append(QLineF(screen[s], screen[s + 1]));
          if (poly.closed) batch.append(QLineF(screen.back(), screen.front()));
          continue;
        }
        QPen pen(color, std::max(selected ? 2.0 : 0.0, double(poly.width) * m_scale));
        if (selected) pen.setStyle(Qt::DashLine);
        if (it.boxOnly) pen.setStyle(Qt::DotLine);
        pen.setCapStyle(poly.width > 0 ? Qt::FlatCap : Qt::SquareCap);
        p.setPen(pen);
        if (poly.count == 1 || (poly.count == 2 && screen[0] == screen[1])) p.drawPoint(screen[0]);
        else if (poly.closed) p.drawPolygon(screen);
        else p.drawPolyline(screen);
      }
      for (qint32 k = 0; k < it.textCount; ++k) {
        const ZqDrawingGeometry::Text& t = texts[size_t(it.firstText + k)];
        const double px = t.height * m_scale;
        if (px < 3) {
          // Too small to read: a stroke along its baseline shows where it is.
          const QPointF a = toScreen(t.position);
          const double len = (it.box.width() + it.box.height()) * m_scale / 2;
          thin[color.rgb()].append(QLineF(a, a + QPointF(std::cos(t.rotation), -std::sin(t.rotation)) * len));
          continue;
        }
        p.setPen(color);
        p.save();
        p.translate(toScreen(t.position));
        p.rotate(-t.rotation * 180 / 3.14159265358979323846);
        const double s = px / capHeight();
        p.scale(s * t.widthFactor, s);
        p.setFont(textFont());
        const QStringList lines = t.text.split('\n');
        const double step = QFontMetricsF(textFont()).lineSpacing();
        for (int l = 0; l < lines.size(); ++l) p.drawText(QPointF(0, l * step), lines[l]);
        p.restore();
      }
    }
    flush();
  }
  if (m_windowing) {
    const QRect r = QRect(m_pressAt, m_lastAt).normalized();
    const bool crossing = m_lastAt.x() < m_pressAt.x();
    p.setPen(QPen(crossing ? QColor(120, 220, 120) : QColor(120, 160, 255), 1, crossing ? Qt::DashLine : Qt::SolidLine));
    p.setBrush(QColor(crossing ? 0 : 60, crossing ? 120 : 80, crossing ? 0 : 160, 50));
    p.drawRect(r);
  }
}

void ZqDrawingView::mousePressEvent(QMouseEvent* e) {
  m_pressAt = m_lastAt = e->position().toPoint();
  if (e->button() == Qt::MiddleButton || e->button() == Qt::RightButton) m_panning = true;
}

void ZqDrawingView::mouseMoveEvent(QMouseEvent* e) {
  const QPoint at = e->position().toPoint();
  if (m_panning) {
    const QPoint d = at - m_lastAt;
    m_center -= QPointF(d.x() / m_scale, -d.y() / m_scale);
    update();
  } else if (e->buttons() & Qt::LeftButton) {
    if ((at - m_pressAt).manhattanLength() > 4) m_windowing = true;
    update();
  }
  m_lastAt = at;
}

void ZqDrawingView::mouseReleaseEvent(QMouseEvent* e) {
  const QPoint at = e->position().toPoint();
  const bool add = e->modifiers() & Qt::ShiftModifier;
  if (m_panning) {
    m_panning = false;
  } else if (e->button() == Qt::LeftButton) {
    if (m_windowing) {
      m_windowing = false;
      const QRectF w = QRectF(toWorld(m_pressAt), toWorld(at)).normalized();
      choose(m_geometry.pickWindow(w, at.x() < m_pressAt.x()), add);
    } else {
      const int i = m_geometry.pick(toWorld(at), 5 / m_scale);
      choose(i >= 0 ? std::vector<int>{i} : std::vector<int>{}, add);
    }
    update();
  }
}

void ZqDrawingView::wheelEvent(QWheelEvent* e) {
  // Zoom about the point under the cursor.
  const QPointF at = e->position();
  const QPointF before = toWorld(at);
  const double factor = std::pow(1.0015, e->angleDelta().y());
  m_scale = std::clamp(m_scale * factor, 1e-9, 1e9);
  const QPointF after = toWorld(at);
  m_center += before - after;
  m_fitted = true;
  update();
}

void ZqDrawingView::choose(const std::vector<int>& items, bool add) {
  OdDbObjectIdArray ids = add ? m_selection : OdDbObjectIdArray();
  QHash<quint64, bool> in;
  for (const OdDbObjectId& id : ids) in.insert(id.getHandle().value(), true);
  for (int i : items) {
    const OdDbObjectId id = m_geometry.items()[size_t(i)].id;
    const quint64 h = id.getHandle().value();
    // Shift with a single pick toggles the object.
    if (add && items.size() == 1 && in.contains(h)) {
      ids.erase(std::remove(ids.begin(), ids.end(), id), ids.end());
      continue;
    }
    if (!in.contains(h)) {
      in.insert(h, true);
      ids.append(id);
    }
  }
  setSelection(ids);
  emit selectionChanged(ids);
}
