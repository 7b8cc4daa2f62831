// DIMENSION, ARC_DIMENSION and LARGE_RADIAL_DIMENSION: the fields every
// dimension has (AcDbDimension), then each kind's defining points as a
// table. R12 records have no subclass markers; their fields are found in
// the one region they have.
//
// Two fields are code below the tables:
//   42  the measurement the file keeps: read as it is (the points then may
//       disagree with it), written when an edit changed it;
//   2   the block that draws the dimension: before writing, an edited
//       aligned, rotated, radial or diametric dimension draws its own block
//       anew (regenerateDimensionBlocks); another edited kind no longer
//       matches its block, so the reference is dropped and a reader draws
//       the dimension anew from its data, as DXF allows for dimensions
//       written without a block. The block itself stays in the file.
#include "DbPlainClasses.h"
#include "DbSymbolTable.h"
#include "DxfFields.h"
#include "DxfFile.h"

#include <QHash>

namespace OdDxf::mapping {
namespace {

using N = OdDbDimension;

template <int Code>
constexpr Access<N> point() {
  return {[](const N* o) { return FieldValue(o->kindPoint(Code)); },
          [](N* o, const FieldValue& v) { o->setKindPoint(Code, std::get<OdGePoint3d>(v)); }};
}
template <int Code>
constexpr Access<N> value() {
  return {[](const N* o) { return FieldValue(o->kindValue(Code)); },
          [](N* o, const FieldValue& v) { o->setKindValue(Code, std::get<double>(v)); }};
}

// clang-format off
//                             code kind            member                                                         default opt            table               name
// AcDbDimension, after the block name and up to the measurement.
constexpr Field<N> kDimensionRows[] = {
    {10,  Kind::Point,    point<10>(),                                                   0,   Opt::Required},
    {11,  Kind::OcsPoint, member<N, &N::textPosition, &N::setTextPosition>(),           0,   Opt::Required},
    {70,  Kind::Int,      member<N, &N::dimensionFlags, &N::setDimensionFlags>(),       0,   Opt::Required},
    {71,  Kind::Int,      member<N, &N::textAttachment, &N::setTextAttachment>(),       5,   Opt::Optional},
    {72,  Kind::Int,      member<N, &N::textLineSpacingStyle, &N::setTextLineSpacingStyle>(), 1, Opt::Optional},
    {41,  Kind::Real,     member<N, &N::textLineSpacingFactor, &N::setTextLineSpacingFactor>(), 1, Opt::Optional},
};
// After the measurement.
constexpr Field<N> kDimensionTextRows[] = {
    {1,   Kind::String,   member<N, &N::dimensionText, &N::setDimensionText>(),         0,   Opt::Optional},
    {53,  Kind::Angle,    member<N, &N::textRotation, &N::setTextRotation>(),           0,   Opt::Optional},
    {51,  Kind::Angle,    member<N, &N::horizontalRotation, &N::setHorizontalRotation>(), 0, Opt::Optional},
    {210, Kind::Normal,   member<N, &N::normal, &N::setNormal>()},
    {3,   Kind::Name,     member<N, &N::dimensionStyle, &N::setDimensionStyle>(),       0,   Opt::Optional, &Context::dimstyles, "Standard"},
};
constexpr Access<N> kNormal = member<N, &N::normal, &N::setNormal>();

// The kinds' own subclasses.
constexpr Field<N> kAlignedRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
    {50,  Kind::Angle,    value<50>(),                                                   0,   Opt::Optional},
    {52,  Kind::Angle,    value<52>(),                                                   0,   Opt::Optional},
};
constexpr Field<N> kTwoLineRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
    {15,  Kind::Point,    point<15>()},
    {16,  Kind::OcsPoint, point<16>()},
};
constexpr Field<N> kThreePointRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
    {15,  Kind::Point,    point<15>()},
};
constexpr Field<N> kRadialRows[] = {
    {15,  Kind::Point,    point<15>()},
    {40,  Kind::Real,     value<40>(),                                                   0,   Opt::Optional},
};
constexpr Field<N> kOrdinateRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
};
constexpr Field<N> kArcRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
    {15,  Kind::Point,    point<15>()},
    {40,  Kind::Real,     value<40>()},
    {41,  Kind::Real,     value<41>()},
    {70,  Kind::Int,      value<70>()},
    {71,  Kind::Int,      value<71>()},
    {16,  Kind::Point,    point<16>()},
    {17,  Kind::Point,    point<17>()},
};
constexpr Field<N> kLargeRadialRows[] = {
    {13,  Kind::Point,    point<13>()},
    {14,  Kind::Point,    point<14>()},
    {15,  Kind::Point,    point<15>()},
    {40,  Kind::Real,     value<40>()},
};
// clang-format on

// The block name (2): see the head of the file.
void blockField(Fields<N>& f) {
  RecordIO& io = f.io();
  N* dim = f.object();
  if (io.reading()) {
    const QString name = io.string(2);
    f.apply(2, [&] { dim->setDimBlockName(OdString(name)); });
  } else if (dim->needsBlockRegeneration()) {
    io.remove(2);
  } else if (f.changed(&N::dimBlockName, Opt::Optional)) {
    io.putString(2, dim->dimBlockName().qstring());
  } else {
    io.skip(2);
  }
}

// The measurement the file keeps (42, R2000 on).
void measurementField(Fields<N>& f) {
  RecordIO& io = f.io();
  N* dim = f.object();
  if (io.reading()) {
    if (io.has(42)) {
      const double v = io.real(42, 0);
      f.apply(42, [&] { dim->setCachedMeasurement(v); });
    }
  } else if (io.supports(1015) && f.changed(&N::cachedMeasurement)) {
    io.putReal(42, dim->cachedMeasurement());
  } else {
    io.skip(42);
  }
}

template <size_t K>
void kindFields(Fields<N>& f, const char* marker, const Field<N> (&rows)[K], const char* second = nullptr) {
  RecordIO& io = f.io();
  N* dim = f.object();
  f.subclass("AcDbDimension");
  blockField(f);
  mapFields(f, kDimensionRows, kNormal);
  const int afterFlags = io.find(70);
  if (afterFlags >= 0 && !io.has(42)) {
    // A new 42 goes after the text attachment and spacing.
    int at = afterFlags;
    for (int code : {71, 72, 41})
      if (io.find(code) > at) at = io.find(code);
    io.moveTo(at + 1);
  }
  measurementField(f);
  mapFields(f, kDimensionTextRows, kNormal);
  f.subclass(marker);
  mapFields(f, rows, kNormal);
  if (second) f.subclass(second);
  if (io.reading()) {
    // Setting the points recomputed the kept measurement; the file's value
    // stands as it is, and the block as read draws the dimension.
    f.subclass("AcDbDimension");
    if (io.has(42)) dim->setCachedMeasurement(io.real(42, 0));
    dim->setNeedsBlockRegeneration(false);
  }
}

}  // namespace

void rotatedDimensionFields(Fields<N>& f) { kindFields(f, "AcDbAlignedDimension", kAlignedRows, "AcDbRotatedDimension"); }
void alignedDimensionFields(Fields<N>& f) { kindFields(f, "AcDbAlignedDimension", kAlignedRows); }
void twoLineAngularDimensionFields(Fields<N>& f) { kindFields(f, "AcDb2LineAngularDimension", kTwoLineRows); }
void threePointAngularDimensionFields(Fields<N>& f) { kindFields(f, "AcDb3PointAngularDimension", kThreePointRows); }
void diametricDimensionFields(Fields<N>& f) { kindFields(f, "AcDbDiametricDimension", kRadialRows); }
void radialDimensionFields(Fields<N>& f) { kindFields(f, "AcDbRadialDimension", kRadialRows); }
void ordinateDimensionFields(Fields<N>& f) { kindFields(f, "AcDbOrdinateDimension", kOrdinateRows); }
void arcDimensionFields(Fields<N>& f) { kindFields(f, "AcDbArcDimension", kArcRows); }
void largeRadialDimensionFields(Fields<N>& f) { kindFields(f, "AcDbRadialDimensionLarge", kLargeRadialRows); }

namespace {

// A DIMASSOC record: after its AcDbDimAssoc marker, 330 the dimension, 90
// the defining points that are attached (bit 1 the first, 2 the second, 4
// the third, 8 the fourth), then one AcDbOsnapPointRef group (1) per
// attached point in that order: 72 the object snap, 331 the entities from
// the outermost reference to the one the point follows, 73, 91, 40, the
// snap point, 75.
bool parseDimAssoc(const Record& r, quint64 dimension, OdDbDatabase* db, OdDbDimAssoc& out) {
  int i = 0;
  while (i < r.size() && !(r.at(i).code() == 100 && r.at(i).trimmed() == "AcDbDimAssoc")) ++i;
  if (i >= r.size()) return false;
  quint64 owner = 0;
  int attached = 0;
  std::vector<int> points;
  OdDbDimAssocPoint* ref = nullptr;
  for (++i; i < r.size(); ++i) {
    const Tag& t = r.at(i);
    switch (t.code()) {
      case 330:
        if (!owner) owner = t.handle();
        break;
      case 90:
        if (!ref) {
          attached = int(t.integer());
          for (int bit = 0; bit < 4; ++bit)
            if (attached & (1 << bit)) points.push_back(bit);
        }
        break;
      case 1:
        if (t.trimmed() != "AcDbOsnapPointRef" || out.points.size() >= points.size()) {
          ref = nullptr;
          break;
        }
        out.points.push_back({points[out.points.size()], 0, OdDbObjectId(), 0});
        ref = &out.points.back();
        break;
      case 72:
        if (ref) ref->osnap = int(t.integer());
        break;
      case 331:
        // The last one is the entity itself (the ones before it are the
        // block references it is nested in).
        if (ref) {
          ref->handle = t.handle();
          ref->object = ref->handle ? db->getOdDbObjectId(OdDbHandle(ref->handle)) : OdDbObjectId();
        }
        break;
      default: break;
    }
  }
  if (owner != dimension) return false;
  out.handle = r.handle();
  return out.handle != 0;
}

// The handles a record lists as its reactors (102 {ACAD_REACTORS ... }).
std::vector<quint64> reactorsOf(const Record& r) {
  std::vector<quint64> out;
  bool in = false;
  for (int i = 1; i < r.size(); ++i) {  // after the record's type
    const Tag& t = r.at(i);
    if (t.code() == 102) in = t.trimmed() == "{ACAD_REACTORS";
    else if (in && t.code() == 330) out.push_back(t.handle());
    else if (t.code() == 100) break;
  }
  return out;
}

}  // namespace

void regenerateDimensionBlocks(OdDbDatabase* db) {
  OdDbObjectPtr t = db->getBlockTableId().openObject();
  auto* table = OdDbSymbolTable::cast(t).get();
  if (!table) return;
  for (const OdDbObjectId& b : table->recordIds()) {
    OdDbObjectPtr block = b.openObject();
    auto* btr = OdDbBlockTableRecord::cast(block).get();
    if (!btr) continue;
    for (const OdDbObjectId& e : btr->entityIds()) {
      OdDbObjectPtr o = e.openObject();
      auto* dim = OdDbDimension::cast(o).get();
      if (!dim || !dim->isModified() || !dim->needsBlockRegeneration()) continue;
      o = e.openObject(OdDb::kForWrite);
      try {
        OdDbDimension::cast(o)->recomputeDimBlock();
      } catch (const OdError&) {
        // The flag stays: the block reference is left out instead.
      }
    }
  }
}

void readDimensionAssociations(Context& ctx, const std::vector<std::vector<OdDbStub*>>& owners) {
  const File& file = *ctx.file;
  const Section* objects = file.section("OBJECTS");
  if (!objects) return;
  QHash<quint64, const Record*> assocs;
  for (const Record& r : objects->records)
    if (r.isType("DIMASSOC"))
      if (const quint64 h = r.handle()) assocs.insert(h, &r);
  if (assocs.isEmpty()) return;
  for (int s = 0; s < file.sections().size() && size_t(s) < owners.size(); ++s) {
    const Section& sec = file.sections()[s];
    for (int i = 0; i < sec.records.size() && size_t(i) < owners[size_t(s)].size(); ++i) {
      const Record& r = sec.records[i];
      if (!r.isType("DIMENSION") && !r.isType("ARC_DIMENSION") && !r.isType("LARGE_RADIAL_DIMENSION")) continue;
      OdDbStub* stub = owners[size_t(s)][size_t(i)];
      if (!stub || !stub->object) continue;
      // The dimension names its DIMASSOC among its reactors; the object
      // names the dimension back.
      for (const quint64 h : reactorsOf(r)) {
        const Record* assoc = assocs.value(h);
        OdDbDimAssoc a;
        if (!assoc || !parseDimAssoc(*assoc, r.handle(), ctx.db, a)) continue;
        OdDbObjectPtr o = OdDbObjectId(stub).openObject(OdDb::kForWrite);
        auto* dim = OdDbDimension::cast(o).get();
        if (!dim) break;
        const bool modified = dim->isModified();
        dim->setAssociation(a);
        dim->setModified(modified);
        break;
      }
    }
  }
}

}  // namespace OdDxf::mapping
