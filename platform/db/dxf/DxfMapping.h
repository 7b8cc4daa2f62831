#pragma once
// The mapping between DXF records and database objects. Not installed.
//
// One list of fields per drawing class says which group codes hold which of
// the class's values, in the order the DXF reference lists them. The same
// list serves three directions (RecordIO::Mode):
//   Read    the record's tags set the object's values;
//   Patch   the values of an edited object that differ from the ones its
//           record holds are written into the record (a record is re-read
//           into a scratch object of the same class - `before` - so that a
//           value counts as unchanged exactly when reading the tags gives it
//           back);
//   Create  a record made for a new object receives every value.
// A tag the record lacks is inserted after the tags of the fields listed
// before it, so new tags land where the DXF reference puts them.
//
// Mapping a further class takes a fields function (see DxfCurves.cpp) and
// one row in the table of DxfEntities.cpp (symbol table records: DxfTables.cpp;
// objects of the OBJECTS section: DxfObjectsSection.cpp).
#include "DxfFile.h"
#include "DbDatabase.h"
#include "DbEntity.h"
#include "DbSymbolTable.h"

#include <QHash>
#include <QSet>

#include <cmath>
#include <functional>
#include <type_traits>

class OdDbLine;
class OdDbCircle;
class OdDbArc;
class OdDbFace;
class OdDbSolid;
class OdDbTrace;
class OdDbEllipse;
class OdDbSpline;
class OdDbPolyline;
class OdDb2dPolyline;
class OdDb3dPolyline;
class OdDb3dPolylineVertex;
class OdDbPolyFaceMesh;
class OdDbPolygonMesh;
class OdDbSubDMesh;
class OdDbMline;
class OdDbShape;
class OdDbPoint;
class OdDbRay;
class OdDbXline;
class OdDbDimStyleTableRecord;
class OdDbText;
class OdDbAttribute;
class OdDbAttributeDefinition;
class OdDbMText;
class OdDbArcAlignedText;
class OdDbDimension;
class OdDb3dSolid;
class OdDbBody;
class OdDbRegion;
class OdDbSurface;
class OdDbExtrudedSurface;
class OdDbRevolvedSurface;
class OdDbSweptSurface;
class OdDbLoftedSurface;
class OdDbHatch;
class OdDbLeader;
class OdDbFcf;
class OdDbMLeader;

class OdDbViewport;

namespace OdDxf::mapping {

// Calls each(name, handle) for every entry of a DICTIONARY record (a 3
// name followed by its 350 or 360 handle), in the record's order.
template <class Each>
void forEachDictionaryEntry(const Record& dict, Each&& each) {
  for (int i = 1; i + 1 < dict.size(); ++i)
    if (dict.at(i).code() == 3 && (dict.at(i + 1).code() == 350 || dict.at(i + 1).code() == 360))
      each(dict.str(i), dict.at(i + 1).handle());
}

// Thrown by reading code for a malformed value; readDrawing turns it into
// its refusal.
struct MapError {
  QString message;
};

// A symbol table's records by name, compared without case.
class NameIndex {
 public:
  OdDbObjectId find(const QString& name) const {
    // Entity after entity names the same few records: the last answer is
    // kept, so most lookups neither fold case nor hash.
    if (m_hasLast && name == m_lastName) return m_lastId;
    m_lastId = m_ids.value(name.toCaseFolded());
    m_lastName = name;
    m_hasLast = true;
    return m_lastId;
  }
  // Keeps the first record of a name; false if the name was taken.
  bool add(const QString& name, const OdDbObjectId& id);
  void clear() {
    m_ids.clear();
    m_hasLast = false;
  }

 private:
  QHash<QString, OdDbObjectId> m_ids;
  mutable QString m_lastName;
  mutable OdDbObjectId m_lastId;
  mutable bool m_hasLast = false;
};

// What the mapper knows about the drawing it reads or writes.
struct Context {
  OdDbDatabase* db = nullptr;
  File* file = nullptr;
  int release = 0;       // 1015 for AC1015; 0 when the file names none
  bool markers = true;   // records carry subclass markers (R13 on)
  bool handles = true;   // records carry handles (every release but early R12)
  bool quiet = false;    // re-reading for comparison: no warnings
  QStringList* warnings = nullptr;
  int warningCount = 0;

  NameIndex layers, linetypes, styles, dimstyles, regapps, blocks, views, vports;
  // Plot style names by the handle of their placeholder object (the
  // ACAD_PLOTSTYLENAME dictionary), and back.
  QHash<quint64, QString> plotStyleNames;
  QHash<QString, quint64> plotStyleHandles;
  // Makes a record the file lacks but names (a layer of an R12 file without
  // LAYER table, say); set while reading, never while re-reading.
  std::function<OdDbObjectId(NameIndex& table, const QString& name)> missingRecord;

  // A handle for a record that is not an object of its own (a VERTEX, an
  // ENDBLK): taken from the database's handle seed so that no object gets it.
  quint64 newHandle() {
    const quint64 h = db->handseed().value();
    db->setHandseed(OdDbHandle(h + 1));
    maxNewHandle = qMax(maxNewHandle, h);
    return h;
  }
  quint64 maxNewHandle = 0;

  // The layer the last entity named, by the name's bytes: most entities in
  // a row are on one layer. Cleared whenever the names change.
  QByteArray lastLayerName;
  OdDbObjectId lastLayer;
  // The ByLayer linetype, which entities without group 6 have.
  OdDbObjectId byLayerLinetype() {
    if (byLayer.isNull()) byLayer = linetypes.find(QStringLiteral("ByLayer"));
    return byLayer;
  }
  OdDbObjectId byLayer;

  // "line 12" / "byte offset 345" of a tag read from the file; for tags made
  // since, the record's type and handle.
  QString where(const Record& r, int index) const;
  void warn(const QString& message);

  // Line counting resumes where the previous question left off.
  mutable const char* lineAt = nullptr;
  mutable qsizetype line = 1;
};

// Sets a string tag; text that a DXF string cannot hold (a line break, a
// tab, another control character) throws MapError naming the record, the
// group code and the text, instead of leaving the value empty.
void writeString(const Context& ctx, Record& r, int index, const QString& text);

class RecordIO {
 public:
  enum Mode { Read, Patch, Create };
  RecordIO(Context& ctx, Record& rec, Mode mode);

  Mode mode() const { return m_mode; }
  bool reading() const { return m_mode == Read; }
  Context& ctx() const { return m_ctx; }
  Record& record() const { return m_rec; }
  // Records that belong to this one (a POLYLINE's VERTEX records), or null.
  void setSequence(QList<Record>* records) { m_sequence = records; }
  QList<Record>* sequence() const { return m_sequence; }
  // True when the file's release has values that came with `release`.
  bool supports(int release) const { return m_ctx.release == 0 || m_ctx.release >= release; }

  // Moves to the tags of a subclass ("AcDbLine"; the n-th marker of that
  // name). Records without markers keep one region for every class.
  void subclass(QByteArrayView marker, int occurrence = 1);

  // Index of the first tag with this code in the current region, or -1.
  int find(int code, int from = -1) const;
  bool has(int code) const { return find(code) >= 0; }

  // Reading. A value that is not a number of the code's type is refused.
  double real(int code, double def) const;
  qint64 integer(int code, qint64 def) const;
  QString string(int code, const QString& def = QString()) const;
  quint64 handle(int code) const;
  // The point of codes code, code+10, code+20 (Z optional).
  OdGePoint3d point(int code, const OdGePoint3d& def = OdGePoint3d()) const;
  double realAt(int index) const;
  qint64 integerAt(int index) const;

  // Writing: patches the tag, or inserts it at the insertion point.
  void putReal(int code, double v);
  void putInteger(int code, qint64 v);
  void putString(int code, const QString& v);
  void putHandle(int code, quint64 h);
  void putPoint(int code, const OdGePoint3d& p, int dims = 3);
  void remove(int code);
  // Inserts a tag at the insertion point (for repeated codes) and returns
  // its index.
  int insertTag(int code);
  // The field of this code is left as it is: the insertion point moves past
  // its tags.
  void skip(int code, int dims = 1);
  // Removes `count` tags at `index` of the region.
  void removeAt(int index, int count);
  // Sets the insertion point (an index in the region, or its end).
  void moveTo(int index) { m_cursor = qBound(m_begin, index, m_end); }

  // Extended data: every application's chain except `exclude`, in file order.
  OdResBufPtr xdata(const QStringList& exclude = {}) const;
  // The items of one application (after its 1001 item), or null.
  OdResBufPtr xdataOf(const QString& app) const;
  // Replaces one application's extended data with `items` (null removes it);
  // a new application goes last.
  void putXdataOf(const QString& app, const OdResBuf* items);

  [[noreturn]] void refuse(int index, const QString& what) const;
  void warn(int index, const QString& what) const;
  QString where(int index) const { return m_ctx.where(m_rec, index); }

 private:
  // The tag a put writes code's value to: the record's own (cursor moved
  // past it, existing true) or a new one inserted at the cursor.
  int slot(int code, bool& existing);
  void insertAt(int index, int code);
  void moveCursor(int index) {
    if (index + 1 > m_cursor) m_cursor = index + 1;
  }
  // Index of the first extended data tag (1001), or the record's size; kept
  // up to date by every insertion and removal through this object.
  int xdataBegin() const { return m_xdata; }
  void shift(int at, int delta);

  Context& m_ctx;
  Record& m_rec;
  Mode m_mode;
  QList<Record>* m_sequence = nullptr;
  bool m_flat = false;   // no subclass markers
  int m_begin = 1, m_end = 1, m_cursor = 1, m_xdata = 1;
};

// Exact comparison of values, NaN equal to NaN.
inline bool same(double a, double b) { return a == b || (std::isnan(a) && std::isnan(b)); }
inline bool same(const OdGePoint3d& a, const OdGePoint3d& b) { return same(a.x, b.x) && same(a.y, b.y) && same(a.z, b.z); }
inline bool same(const OdGeVector3d& a, const OdGeVector3d& b) { return same(a.x, b.x) && same(a.y, b.y) && same(a.z, b.z); }
inline bool same(const OdGePoint2d& a, const OdGePoint2d& b) { return same(a.x, b.x) && same(a.y, b.y); }
template <class V>
bool same(const V& a, const V& b) { return a == b; }

// The unit normal of codes code/+10/+20 as the reader makes it: (0,0,1) when
// absent or zero.
OdGeVector3d readNormal(const RecordIO& io, int code);

// Whether a field may be left out of a new record when it has its default.
enum class Opt { Required, Optional };

// The fields of one class, bound to an object (and, when patching or
// creating, to `before`: the record re-read, or a default object).
template <class T>
class Fields {
 public:
  Fields(RecordIO& io, T* obj, const T* before) : m_io(io), m_obj(obj), m_before(before) {}

  RecordIO& io() const { return m_io; }
  bool reading() const { return m_io.reading(); }
  T* object() const { return m_obj; }
  const T* before() const { return m_before; }
  void subclass(QByteArrayView marker, int occurrence = 1) { m_io.subclass(marker, occurrence); }

  // Whether the value `get` gives must be written: it differs from `before`,
  // or the record is new and the field required.
  template <class Get>
  bool changed(Get get, Opt opt = Opt::Required) const {
    if (m_io.mode() == RecordIO::Create && opt == Opt::Required) return true;
    return !same(std::invoke(get, m_obj), std::invoke(get, m_before));
  }

  template <class Get, class Set>
  void real(int code, Get get, Set set, double def = 0.0, Opt opt = Opt::Required) {
    if (reading()) {
      const double v = m_io.real(code, def);
      apply(code, [&] { std::invoke(set, m_obj, v); });
    } else if (changed(get, opt)) {
      m_io.putReal(code, std::invoke(get, m_obj));
    } else {
      m_io.skip(code);
    }
  }

  template <class Get, class Set>
  void integer(int code, Get get, Set set, qint64 def = 0, Opt opt = Opt::Required) {
    using V = std::decay_t<std::invoke_result_t<Get, T*>>;
    if (reading()) {
      const qint64 v = m_io.integer(code, def);
      apply(code, [&] { std::invoke(set, m_obj, V(v)); });
    } else if (changed(get, opt)) {
      m_io.putInteger(code, qint64(std::invoke(get, m_obj)));
    } else {
      m_io.skip(code);
    }
  }

  // One bit of a flags word (group 70 and the like).
  template <class Get, class Set>
  void flag(int code, int bit, Get get, Set set) {
    if (reading()) {
      const bool v = (m_io.integer(code, 0) & bit) != 0;
      apply(code, [&] { std::invoke(set, m_obj, v); });
      return;
    }
    const bool v = std::invoke(get, m_obj);
    const bool mustWrite = m_io.mode() == RecordIO::Create ? v : v != bool(std::invoke(get, m_before));
    if (!mustWrite) {
      if (m_io.mode() == RecordIO::Create && !m_io.has(code)) m_io.putInteger(code, 0);
      else m_io.skip(code);
      return;
    }
    const qint64 old = m_io.integer(code, 0);
    m_io.putInteger(code, v ? (old | bit) : (old & ~qint64(bit)));
  }

  template <class Get, class Set>
  void string(int code, Get get, Set set, Opt opt = Opt::Required) {
    if (reading()) {
      const QString v = m_io.string(code);
      apply(code, [&] { std::invoke(set, m_obj, OdString(v)); });
    } else if (changed(get, opt)) {
      m_io.putString(code, OdString(std::invoke(get, m_obj)).qstring());
    } else {
      m_io.skip(code);
    }
  }

  // A WCS point or a vector of codes code, code+10, code+20.
  template <class Get, class Set>
  void point(int code, Get get, Set set, Opt opt = Opt::Required, int dims = 3) {
    using V = std::decay_t<std::invoke_result_t<Get, T*>>;
    if (reading()) {
      const OdGePoint3d p = m_io.point(code);
      apply(code, [&] { std::invoke(set, m_obj, V(p.x, p.y, p.z)); });
    } else if (changed(get, opt)) {
      const V v = std::invoke(get, m_obj);
      m_io.putPoint(code, OdGePoint3d(v.x, v.y, v.z), dims);
    } else {
      m_io.skip(code, dims);
    }
  }

  // The extrusion direction (210/220/230): a unit vector, (0,0,1) by default
  // and left out of new records then.
  template <class Get, class Set>
  void normal(int code, Get get, Set set) {
    if (reading()) {
      const OdGeVector3d n = readNormal(m_io, code);
      apply(code, [&] { std::invoke(set, m_obj, n); });
    } else if (changed(get, Opt::Optional)) {
      const OdGeVector3d n = std::invoke(get, m_obj);
      m_io.putPoint(code, OdGePoint3d(n.x, n.y, n.z), 3);
    } else {
      m_io.skip(code, 3);
    }
  }

  // A point the object keeps in WCS and the record in the object coordinate
  // system of the normal of `normalCode` (arbitrary axis algorithm). A new
  // normal moves the record's coordinates too.
  template <class Get, class Set, class Normal>
  void ocsPoint(int code, int normalCode, Get get, Set set, Normal normal, Opt opt = Opt::Required, int dims = 3) {
    if (reading()) {
      const OdGePoint3d p = OdGeMatrix3d::planeToWorld(readNormal(m_io, normalCode)) * m_io.point(code);
      apply(code, [&] { std::invoke(set, m_obj, p); });
    } else if (changed(get, opt) || !same(std::invoke(normal, m_obj), std::invoke(normal, m_before))) {
      const OdGePoint3d p = OdGeMatrix3d::worldToPlane(std::invoke(normal, m_obj)) * std::invoke(get, m_obj);
      m_io.putPoint(code, p, dims);
    } else {
      m_io.skip(code, dims);
    }
  }

  // Runs a setter; a value the object refuses keeps its default, with a
  // warning that says so.
  template <class F>
  void apply(int code, F&& f) {
    try {
      f();
    } catch (const OdError& e) {
      const int at = m_io.find(code);
      m_io.warn(at, QStringLiteral("group code %1 value '%2' refused (%3); default kept")
                        .arg(code)
                        .arg(at >= 0 ? m_io.record().str(at) : QString(), e.description().qstring()));
    }
  }

 private:
  RecordIO& m_io;
  T* m_obj;
  const T* m_before;
};

// How one drawing class is read and written.
using FieldsFn = void (*)(RecordIO& io, OdDbObject* obj, const OdDbObject* before);
template <class T, void (*F)(Fields<T>&)>
void fieldsOf(RecordIO& io, OdDbObject* obj, const OdDbObject* before) {
  Fields<T> f(io, static_cast<T*>(obj), static_cast<const T*>(before));
  F(f);
}

struct ClassMapping {
  const char* dxfName;       // record type
  OdRxClass* (*desc)();      // the class, exactly (derived classes have rows of their own)
  int minRelease;            // oldest release that has the record type (0: all)
  FieldsFn fields;           // the class's own fields (after the common ones)
  bool sequence = false;     // followed by records of its own up to SEQEND (POLYLINE)
  bool partial = false;      // only some of the class's data is mapped: new objects cannot be written
};

// The fields of the classes whose data is mapped (DxfCurves.cpp).
void lineFields(Fields<OdDbLine>& f);
void circleFields(Fields<OdDbCircle>& f);
void arcFields(Fields<OdDbArc>& f);
void ellipseFields(Fields<OdDbEllipse>& f);
void splineFields(Fields<OdDbSpline>& f);
void lwpolylineFields(Fields<OdDbPolyline>& f);
void polyline2dFields(Fields<OdDb2dPolyline>& f);
void pointFields(Fields<OdDbPoint>& f);
// 3D polylines and meshes (DxfMeshes.cpp).
void polyline3dFields(Fields<OdDb3dPolyline>& f);
void vertex3dFields(Fields<OdDb3dPolylineVertex>& f);
void polyFaceMeshFields(Fields<OdDbPolyFaceMesh>& f);
void polygonMeshFields(Fields<OdDbPolygonMesh>& f);
void subDMeshFields(Fields<OdDbSubDMesh>& f);

// A new VERTEX record of the POLYLINE record `owner`: its own handle, the
// owner and the entity marker, as far as the release has them.
Record newVertexRecord(Context& ctx, const Record& owner);

// The VERTEX records of a 2D or 3D polyline (V its vertex class). Reading
// makes one vertex per record; writing patches the records of the vertices
// both versions have, drops the records past the new count and makes
// records for new vertices (each VERTEX has a handle of its own).
// `vertexRecord(record, vertex, before, mode)` reads or writes one record;
// `before` is null when reading.
template <class V, class P, class VertexRecord>
void polylineVertices(Fields<P>& f, VertexRecord&& vertexRecord) {
  RecordIO& io = f.io();
  QList<Record>* seq = io.sequence();
  if (!seq) return;
  P* pl = f.object();
  if (io.reading()) {
    for (Record& vr : *seq) {
      OdSmartPtr<V> v = V::createObject();
      vertexRecord(vr, v.get(), static_cast<const V*>(nullptr), RecordIO::Read);
      v->setModified(false);
      pl->appendVertex(v.get());
    }
    return;
  }
  Context& ctx = io.ctx();
  const P* before = f.before();
  const unsigned n = pl->numVerts(), kept = qMin(n, before->numVerts());
  const bool wasQuiet = ctx.quiet;
  ctx.quiet = true;
  for (unsigned i = 0; i < kept && int(i) < seq->size(); ++i)
    vertexRecord((*seq)[int(i)], const_cast<V*>(pl->vertexAt(i)), before->vertexAt(i), RecordIO::Patch);
  while (seq->size() > int(kept)) seq->removeLast();
  for (unsigned i = kept; i < n; ++i) {
    Record vr = newVertexRecord(ctx, io.record());
    OdSmartPtr<V> def = V::createObject();
    vertexRecord(vr, const_cast<V*>(pl->vertexAt(i)), def.get(), RecordIO::Create);
    seq->append(vr);
  }
  ctx.quiet = wasQuiet;
}
// Multilines (DxfCurves.cpp).
void mlineFields(Fields<OdDbMline>& f);
void shapeFields(Fields<OdDbShape>& f);
// Four-cornered entities (DxfFaces.cpp).
void faceFields(Fields<OdDbFace>& f);
void solidFields(Fields<OdDbSolid>& f);
void traceFields(Fields<OdDbTrace>& f);
// Hatches (DxfFills.cpp).
void hatchFields(Fields<OdDbHatch>& f);
void rayFields(Fields<OdDbRay>& f);
void xlineFields(Fields<OdDbXline>& f);
// Texts (DxfText.cpp).
void textFields(Fields<OdDbText>& f);
void attdefFields(Fields<OdDbAttributeDefinition>& f);
void attribFields(Fields<OdDbAttribute>& f);
void mtextFields(Fields<OdDbMText>& f);
void arcAlignedTextFields(Fields<OdDbArcAlignedText>& f);
// Solids, bodies, regions and surfaces: modeller data, history, surface
// parameters (DxfSolids.cpp).
void solidFields(Fields<OdDb3dSolid>& f);
void bodyFields(Fields<OdDbBody>& f);
void regionFields(Fields<OdDbRegion>& f);
void surfaceFields(Fields<OdDbSurface>& f);
void extrudedSurfaceFields(Fields<OdDbExtrudedSurface>& f);
void revolvedSurfaceFields(Fields<OdDbRevolvedSurface>& f);
void sweptSurfaceFields(Fields<OdDbSweptSurface>& f);
void loftedSurfaceFields(Fields<OdDbLoftedSurface>& f);
// The nine kinds of dimension, each with the fields every dimension has
// (DxfDimension.cpp).
void rotatedDimensionFields(Fields<OdDbDimension>& f);
// After the entities are read: each dimension's DIMASSOC object, found by
// the handle among its reactors (the OBJECTS section's record is only read).
void readDimensionAssociations(Context& ctx, const std::vector<std::vector<OdDbStub*>>& owners);
// Before writing: every dimension edited since it was read draws its own
// block anew where it can (OdDbDimension::recomputeDimBlock).
void regenerateDimensionBlocks(OdDbDatabase* db);
void alignedDimensionFields(Fields<OdDbDimension>& f);
void twoLineAngularDimensionFields(Fields<OdDbDimension>& f);
void threePointAngularDimensionFields(Fields<OdDbDimension>& f);
void diametricDimensionFields(Fields<OdDbDimension>& f);
void radialDimensionFields(Fields<OdDbDimension>& f);
void ordinateDimensionFields(Fields<OdDbDimension>& f);
void arcDimensionFields(Fields<OdDbDimension>& f);
void largeRadialDimensionFields(Fields<OdDbDimension>& f);
// Leaders and tolerance frames (DxfLeaders.cpp).
void leaderFields(Fields<OdDbLeader>& f);
void fcfFields(Fields<OdDbFcf>& f);
void mleaderFields(Fields<OdDbMLeader>& f);
// DIMSTYLE records, one field per dimension variable (DxfDimStyle.cpp).
void dimStyleFields(Fields<OdDbDimStyleTableRecord>& f);

// Entities whose data the platform models; the rest keep their common
// properties only.
void viewportFields(Fields<OdDbViewport>& f);
const ClassMapping* entityMapping(const OdRxClass* cls);
// Block references, multiple inserts and proxies (DxfBlocks.cpp).
const ClassMapping* blockEntityMapping(const OdRxClass* cls);
// Raster images, tables, underlays, OLE frames and lights (DxfObjects.cpp).
const ClassMapping* objectEntityMapping(const OdRxClass* cls);
// Symbol table records, by class or by record type.
const ClassMapping* recordMapping(const OdRxClass* cls);
const ClassMapping* recordMapping(QByteArrayView type);
// Objects of the OBJECTS section (DxfObjectsSection.cpp); recordMapping
// answers for them too.
const ClassMapping* objectMapping(const OdRxClass* cls);
const ClassMapping* objectMapping(QByteArrayView type);
// Applications whose extended data a class maps to values of its own.
QStringList ownXdataApps(const OdRxClass* cls);
// The BLOCK record that starts a block's definition (name, base point).
void blockBeginFields(RecordIO& io, OdDbBlockTableRecord* block, const OdDbBlockTableRecord* before);
// $MODEL_SPACE / $PAPER_SPACE of R12 as the platform names them.
QString blockName(const QString& fileName);

// The properties every entity has (layer, linetype, colour, ...), extended
// data and hyperlinks included.
void entityCommonFields(RecordIO& io, OdDbEntity* obj, const OdDbEntity* before);
// Hyperlinks (the "PE_URL" application) and the other applications' data.
void entityXdataFields(RecordIO& io, OdDbEntity* obj, const OdDbEntity* before);
// Extended data of any object (applications in `exclude` are mapped elsewhere).
void xdataFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before, const QStringList& exclude);

// Shared by entities and layers: a linetype by name (absent: ByLayer), a
// colour of 62 (negative: a layer that is off) and 420 true colour.
void readOrWriteLinetype(RecordIO& io, int code, OdDbObjectId current, OdDbObjectId before,
                         const std::function<void(const OdDbObjectId&)>& set);
OdCmColor readColor(RecordIO& io, bool allowNegative);
void writeColorIndex(RecordIO& io, const OdCmColor& c, int sign, bool create);
void writeTrueColor(RecordIO& io, const OdCmColor& c);

// The class of an entity record: by DXF name, DIMENSION by its type,
// POLYLINE by its flags, INSERT by its columns and rows; unknown types are
// proxies.
OdRxClass* entityClass(const Record& r);

// Header variables: read into the database, patched when they differ.
void readHeader(Context& ctx);
void patchHeader(Context& ctx);

// Name of a symbol table record ("" for the null id).
QString recordName(const OdDbObjectId& id);

}  // namespace OdDxf::mapping
