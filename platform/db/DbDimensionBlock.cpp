// The block that draws a dimension, drawn anew after an edit: dimension
// line, extension lines, arrowheads (closed filled as solids, others as
// references to their blocks) and the text as multiline text, from the
// defining points and the dimension's variables.
#include "DbDimension.h"
#include "DbBlockReference.h"
#include "DbDatabase.h"
#include "DbLine.h"
#include "DbMText.h"
#include "DbSolid.h"
#include "DbSymbolTable.h"
#include "OdDbUnitsFormatter.h"
#include "OdGeMatrix3d.h"

#include <cmath>

namespace {

constexpr double kTiny = 1e-10;

// What the new block is made of, before it replaces the old contents.
struct Picture {
  std::vector<OdDbEntityPtr> entities;
  const OdDbDimension* dim;
  OdDbDatabase* db;

  void line(const OdGePoint3d& a, const OdGePoint3d& b, const OdCmColor& color) {
    if (a.distanceTo(b) <= kTiny) return;
    OdDbLinePtr l = OdDbLine::createObject();
    l->setStartPoint(a);
    l->setEndPoint(b);
    add(l.get(), color);
  }
  // An arrowhead with its tip at `tip`, its body along `into` (unit).
  void arrow(const OdGePoint3d& tip, const OdGeVector3d& into, const OdDbObjectId& block) {
    const double size = dim->dimasz() * scale();
    if (size <= kTiny) return;
    const OdGeVector3d n = dim->normal();
    if (block.isNull()) {
      const OdGeVector3d across = n.crossProduct(into).normal() * (size / 6);
      const OdGePoint3d base = tip + into * size;
      OdSmartPtr<OdDbSolid> s = OdDbSolid::createObject();
      s->setPointAt(0, tip);
      s->setPointAt(1, base + across);
      s->setPointAt(2, base - across);
      s->setPointAt(3, base - across);
      s->setNormal(n);
      add(s.get(), dim->dimclrd());
      return;
    }
    // Arrowhead blocks point along -X with their tip at the origin.
    const OdGeVector3d out = OdGeMatrix3d::worldToPlane(n) * (-into);
    OdDbBlockReferencePtr r = OdDbBlockReference::createObject();
    r->setBlockTableRecord(block);
    r->setPosition(tip);
    r->setScaleFactors(OdGeScale3d(size, size, size));
    r->setRotation(std::atan2(out.y, out.x));
    r->setNormal(n);
    add(r.get(), dim->dimclrd());
  }
  void text(const OdGePoint3d& at, double rotation, const OdString& contents) {
    if (contents.isEmpty()) return;
    OdDbMTextPtr t = OdDbMText::createObject();
    t->setNormal(dim->normal());
    t->setLocation(at);
    t->setTextHeight(std::max(dim->dimtxt() * scale(), 1e-6));
    t->setAttachment(OdDbMText::kMiddleCenter);
    t->setRotation(rotation);
    if (!dim->dimtxsty().isNull()) t->setTextStyle(dim->dimtxsty());
    t->setContents(contents);
    add(t.get(), dim->dimclrt());
  }
  double scale() const { return dim->dimscale() > kTiny ? dim->dimscale() : 1.0; }
  void add(OdDbEntity* e, const OdCmColor& color) {
    e->setDatabaseDefaults(db);
    e->setLayer(OdString("0"));
    e->setColor(color);
    entities.emplace_back(e);
  }
};

// The measurement as the text shows it: the linear factor, the unit
// format and precision, the prefix and suffix around "<>", and the
// dimension's own text where it has one ("<>" in it is the measurement).
OdString measurementText(const OdDbDimension* dim, OdDbDatabase* db, const char* prefix) {
  const OdString own = dim->dimensionText();
  if (own == OdString(" ")) return OdString();
  const double value = dim->measurement() * dim->dimlfac();
  QString number = db->formatter().formatDistance(value, dim->dimlunit(), dim->dimdec()).qstring();
  if (dim->dimdsep() != L'.' && dim->dimdsep() > 0) number.replace(QLatin1Char('.'), QChar(char16_t(dim->dimdsep())));
  const QString post = dim->dimpost().qstring();
  const qsizetype at = post.indexOf(QLatin1String("<>"));
  QString measured = at < 0 ? QLatin1String(prefix) + number + post
                            : post.left(at) + QLatin1String(prefix) + number + post.mid(at + 2);
  if (own.isEmpty()) return OdString(measured);
  QString text = own.qstring();
  text.replace(QLatin1String("<>"), measured);
  return OdString(text);
}

// Text along a direction, turned so that it never reads upside down.
double readable(const OdGeVector3d& normal, const OdGeVector3d& along) {
  const OdGeVector3d v = OdGeMatrix3d::worldToPlane(normal) * along;
  double a = std::atan2(v.y, v.x);
  if (a > M_PI / 2 + kTiny) a -= M_PI;
  else if (a <= -M_PI / 2 + kTiny) a += M_PI;
  return a;
}

}  // namespace

bool OdDbDimension::recomputeDimBlock() {
  assertWriteEnabled();
  OdDbDatabase* db = database();
  // Only a block of this dimension's own is drawn anew (32: not shared).
  if (!db || m_block.isEmpty() || !(m_flags & 32)) return false;
  OdDbObjectPtr tableObject = db->getBlockTableId().openObject();
  auto* table = OdDbSymbolTable::cast(tableObject).get();
  const OdDbObjectId blockId = table ? table->getAt(m_block) : OdDbObjectId();
  if (blockId.isNull()) return false;

  Picture p{{}, this, db};
  const OdGeVector3d n = normal();
  auto arrowBlock = [&](bool second) {
    return dimsah() ? (second ? dimblk2() : dimblk1()) : dimblk();
  };
  const OdGePoint3d textAt = textPosition();
  double measured = 0;
  if (!measure(measured)) return false;

  if (auto* linear = OdDbRotatedDimension::cast(this).get(); linear || isKindOf(OdDbAlignedDimension::desc())) {
    OdGePoint3d p1, p2, d;
    OdGeVector3d u;
    if (linear) {
      p1 = linear->xLine1Point(), p2 = linear->xLine2Point(), d = linear->dimLinePoint();
      u = OdGeMatrix3d::planeToWorld(n) * OdGeVector3d(std::cos(linear->rotation()), std::sin(linear->rotation()), 0);
    } else {
      auto* aligned = static_cast<OdDbAlignedDimension*>(this);
      p1 = aligned->xLine1Point(), p2 = aligned->xLine2Point(), d = aligned->dimLinePoint();
      u = (p2 - p1).normal();
    }
    const OdGePoint3d a1 = d + u * (p1 - d).dotProduct(u), a2 = d + u * (p2 - d).dotProduct(u);
    const double exo = dimexo() * p.scale(), exe = dimexe() * p.scale();
    auto extension = [&](const OdGePoint3d& from, const OdGePoint3d& to, bool suppressed) {
      const OdGeVector3d v = to - from;
      if (suppressed || v.length() <= kTiny) return;
      const OdGeVector3d e = v.normal();
      p.line(from + e * exo, to + e * exe, dimclre());
    };
    extension(p1, a1, dimse1());
    extension(p2, a2, dimse2());
    p.line(a1, a2, dimclrd());
    if (a1.distanceTo(a2) > kTiny) {
      const OdGeVector3d w = (a2 - a1).normal();
      p.arrow(a1, w, arrowBlock(false));
      p.arrow(a2, -w, arrowBlock(true));
    }
    OdGePoint3d at = textAt;
    if (isUsingDefaultTextPosition()) {
      // Centered on the dimension line, above it when DIMTAD asks.
      at = a1 + (a2 - a1) * 0.5;
      if (dimtad() != 0) {
        OdGeVector3d up = n.crossProduct(u).normal();
        if (up.dotProduct(OdGeMatrix3d::planeToWorld(n) * OdGeVector3d(0, 1, 0)) < 0) up = -up;
        at += up * (dimtxt() * p.scale() / 2 + std::fabs(dimgap()) * p.scale());
      }
      m_textPosition = at;
    }
    p.text(at, m_textRotation != 0 ? m_textRotation : readable(n, u), measurementText(this, db, ""));
  } else if (auto* radial = OdDbRadialDimension::cast(this).get()) {
    const OdGePoint3d c = radial->center(), chord = radial->chordPoint();
    p.line(c, chord, dimclrd());
    p.arrow(chord, (c - chord).normal(), arrowBlock(true));
    p.text(textAt, m_textRotation != 0 ? m_textRotation : readable(n, chord - c), measurementText(this, db, "R"));
  } else if (auto* diametric = OdDbDiametricDimension::cast(this).get()) {
    const OdGePoint3d far = diametric->farChordPoint(), chord = diametric->chordPoint();
    p.line(far, chord, dimclrd());
    p.arrow(chord, (far - chord).normal(), arrowBlock(true));
    p.arrow(far, (chord - far).normal(), arrowBlock(false));
    p.text(textAt, m_textRotation != 0 ? m_textRotation : readable(n, chord - far), measurementText(this, db, "%%c"));
  } else {
    return false;  // the other kinds keep the flag: a reader draws them anew
  }

  OdDbObjectPtr blockObject = blockId.openObject(OdDb::kForWrite);
  auto* block = OdDbBlockTableRecord::cast(blockObject).get();
  if (!block) return false;
  for (const OdDbObjectId& id : block->entityIds()) {
    OdDbObjectPtr old = id.openObject(OdDb::kForWrite);
    if (old) old->erase();
  }
  for (const OdDbEntityPtr& e : p.entities) block->appendOdDbEntity(e.get());
  m_regenerate = false;
  return true;
}
