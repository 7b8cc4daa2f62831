#pragma once
// What a database keeps of the DXF file it was read from, and the steps
// that read a file into a database (DxfDrawingRead.cpp) and write it back
// (DxfDrawingWrite.cpp). Not installed.
#include "DxfMapping.h"
#include "DbViewTableRecord.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <unordered_set>
#include <vector>

namespace OdDxf::mapping {

// A set of object stubs, open addressing with linear probing: a million
// inserts while reading cost one array rather than a million list nodes.
class StubSet {
 public:
  bool count(const OdDbStub* s) const {
    if (!s) return m_hasNull;
    if (m_slots.empty()) return false;
    for (size_t i = slot(s);; i = (i + 1) & mask()) {
      if (m_slots[i] == s) return true;
      if (m_slots[i] == nullptr) return false;
    }
  }
  void insert(const OdDbStub* s) {
    if (!s) {
      m_hasNull = true;
      return;
    }
    if ((m_used + 1) * 4 > m_slots.size() * 3) rehash(std::max<size_t>(16, m_slots.size() * 2));
    size_t free = SIZE_MAX;
    size_t i = slot(s);
    for (;; i = (i + 1) & mask()) {
      if (m_slots[i] == s) return;
      if (m_slots[i] == kGone && free == SIZE_MAX) free = i;
      if (m_slots[i] == nullptr) break;
    }
    if (free == SIZE_MAX) {
      free = i;
      ++m_used;
    }
    m_slots[free] = s;
    ++m_size;
  }
  template <typename It>
  void insert(It b, It e) {
    for (; b != e; ++b) insert(*b);
  }
  void erase(const OdDbStub* s) {
    if (!s) {
      m_hasNull = false;
      return;
    }
    if (m_slots.empty()) return;
    for (size_t i = slot(s);; i = (i + 1) & mask()) {
      if (m_slots[i] == nullptr) return;
      if (m_slots[i] == s) {
        m_slots[i] = kGone;  // keeps the probe chains of later entries intact
        --m_size;
        return;
      }
    }
  }
  void reserve(size_t n) {
    size_t cap = 16;
    while (cap * 3 < n * 4 + 4) cap *= 2;
    if (cap > m_slots.size()) rehash(cap);
  }
  size_t size() const { return m_size + (m_hasNull ? 1 : 0); }

 private:
  static inline const OdDbStub* const kGone = reinterpret_cast<const OdDbStub*>(alignof(std::max_align_t));
  size_t mask() const { return m_slots.size() - 1; }
  size_t slot(const OdDbStub* s) const {
    return size_t((quint64(reinterpret_cast<quintptr>(s)) * 0x9E3779B97F4A7C15ull) >> 17) & mask();
  }
  void rehash(size_t cap) {
    std::vector<const OdDbStub*> old(cap, nullptr);
    old.swap(m_slots);
    m_used = m_size = 0;
    for (const OdDbStub* s : old)
      if (s && s != kGone) insert(s);
  }
  std::vector<const OdDbStub*> m_slots;  // power-of-two size; null: empty
  size_t m_used = 0;                      // slots holding a stub or kGone
  size_t m_size = 0;
  bool m_hasNull = false;
};

// What a database keeps of the file it was read from.
class DrawingData : public OdRxObject {
 public:
  File file;
  Context ctx;
  // Per section, per record: the object the record belongs to (null for
  // records the platform does not model).
  std::vector<std::vector<OdDbStub*>> owners;
  // Objects that have records in the file.
  StubSet bound;
  // Objects the reader made for what the file lacks (a default layer, say);
  // they are never written.
  std::unordered_set<const OdDbStub*> implicit;
  quint64 handseed = 0;  // $HANDSEED as the file has it; 0 if none

  DrawingData() { ctx.file = &file; }
  // A copy to bring up to date; the two sets stay with the original until
  // the copy replaces it (adopt()).
  DrawingData(const DrawingData& o) : file(o.file), ctx(o.ctx), owners(o.owners), handseed(o.handseed) {
    ctx.file = &file;
  }
  void adopt(DrawingData& o, const std::vector<const OdDbStub*>& added, const std::vector<const OdDbStub*>& dropped,
             const std::vector<const OdDbStub*>& madeReal) {
    bound = std::move(o.bound);
    implicit = std::move(o.implicit);
    for (const OdDbStub* s : dropped) bound.erase(s);
    for (const OdDbStub* s : madeReal) implicit.erase(s);
    bound.insert(added.begin(), added.end());
  }
};

inline DrawingData* drawingData(OdDbDatabase* db) {
  return db ? dynamic_cast<DrawingData*>(db->fileData()) : nullptr;
}

// The symbol tables the database models.
struct TableKind {
  const char* name;             // group 2 of the TABLE record
  const char* recordType;
  OdRxClass* (*tableClass)();
  NameIndex Context::*index;
};
inline const TableKind kTables[] = {
    {"BLOCK_RECORD", "BLOCK_RECORD", &OdDbBlockTable::desc, &Context::blocks},
    {"LAYER", "LAYER", &OdDbLayerTable::desc, &Context::layers},
    {"LTYPE", "LTYPE", &OdDbLinetypeTable::desc, &Context::linetypes},
    {"STYLE", "STYLE", &OdDbTextStyleTable::desc, &Context::styles},
    {"DIMSTYLE", "DIMSTYLE", &OdDbDimStyleTable::desc, &Context::dimstyles},
    {"APPID", "APPID", &OdDbRegAppTable::desc, &Context::regapps},
    {"VIEW", "VIEW", &OdDbViewTable::desc, &Context::views},
    {"VPORT", "VPORT", &OdDbViewportTable::desc, &Context::vports},
};
constexpr int kTableCount = int(std::size(kTables));

inline OdDbObjectId tableId(OdDbDatabase* db, int k) {
  switch (k) {
    case 0: return db->getBlockTableId();
    case 1: return db->getLayerTableId();
    case 2: return db->getLinetypeTableId();
    case 3: return db->getTextStyleTableId();
    case 4: return db->getDimStyleTableId();
    case 5: return db->getRegAppTableId();
    case 6: return db->getViewTableId();
    default: return db->getViewportTableId();
  }
}

inline OdDbStub* stubOf(const OdDbObjectId& id) { return id.stub(); }


// The fields of an object of any mapped class (entities: common properties,
// the class's own, extended data and hyperlinks; symbol table records: their
// own and extended data): read from a record, or written where they differ
// from `before`.
void readFields(RecordIO& io, OdDbObject* obj);
void writeFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before);

inline QString typeName(const Record& r) { return printable(r.type()); }

// Reads the OBJECTS section `s` (DxfObjectsSection.cpp): `add` puts an
// object into the database with the record's handle and binds it to record
// `i`. `handles` are the section's records' handles.
void readObjectsSection(DrawingData& d, int s, const std::vector<quint64>& handles,
                        const std::function<OdDbObjectId(OdDbObject*, quint64 handle, int i)>& add);

// Reads the parsed file of `d` into the (empty) database. Throws MapError
// for a drawing that cannot be read.
void readObjects(DrawingData& d, OdDbDatabase* db, QStringList* warnings);

// Gives the single-line texts made annotative in memory the extension
// dictionary and context data of the drawing's current annotation scale
// (DxfAnnotationContext.cpp); called by the writer once the sections are
// up to date.
void addAnnotationContexts(DrawingData& d, OdDbDatabase* db);

// Checks every tag value outside HEADER against its group code's type
// (DxfValueCheck.cpp): throws MapError for a malformed one, warns about
// reals that are not finite.
void checkValues(Context& ctx);

// Brings the records the database keeps up to date with it (in a copy that
// replaces them once that worked) and serializes them. False with `error`
// when the drawing cannot be written; nothing is changed then.
bool writeImpl(OdDbDatabase* db, QByteArray& out, QString& error);

// The names the records hold now, for the next re-reading.
void reindex(DrawingData& d, OdDbDatabase* db);

}  // namespace OdDxf::mapping
