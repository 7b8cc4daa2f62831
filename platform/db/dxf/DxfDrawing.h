#pragma once
// What a database keeps of the DXF file it was read from, and the steps
// that read a file into a database (DxfDrawingRead.cpp) and write it back
// (DxfDrawingWrite.cpp). Not installed.
#include "DxfMapping.h"

#include <unordered_set>
#include <vector>

namespace OdDxf::mapping {

// What a database keeps of the file it was read from.
class DrawingData : public OdRxObject {
 public:
  File file;
  Context ctx;
  // Per section, per record: the object the record belongs to (null for
  // records the platform does not model).
  std::vector<std::vector<OdDbStub*>> owners;
  // Objects that have records in the file.
  std::unordered_set<const OdDbStub*> bound;
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
};
constexpr int kTableCount = int(std::size(kTables));

inline OdDbObjectId tableId(OdDbDatabase* db, int k) {
  switch (k) {
    case 0: return db->getBlockTableId();
    case 1: return db->getLayerTableId();
    case 2: return db->getLinetypeTableId();
    case 3: return db->getTextStyleTableId();
    case 4: return db->getDimStyleTableId();
    default: return db->getRegAppTableId();
  }
}

inline OdDbStub* stubOf(const OdDbObjectId& id) { return id.stub(); }


// The fields of an object of any mapped class (entities: common properties,
// the class's own, extended data and hyperlinks; symbol table records: their
// own and extended data): read from a record, or written where they differ
// from `before`.
void readFields(RecordIO& io, OdDbObject* obj);
void writeFields(RecordIO& io, OdDbObject* obj, const OdDbObject* before);

inline QString typeName(const Record& r) { return QString::fromLatin1(r.type().toByteArray()); }

// Reads the parsed file of `d` into the (empty) database. Throws MapError
// for a drawing that cannot be read.
void readObjects(DrawingData& d, OdDbDatabase* db, QStringList* warnings);

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
