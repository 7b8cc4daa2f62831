// The annotation context of single-line texts made annotative in memory.
//
// An annotative object carries, besides its AcadAnnotative extended data, an
// extension dictionary that names one context-data object per annotation
// scale it is drawn at:
//
//   entity  102 {ACAD_XDICTIONARY  360 -> DICTIONARY (owned by the entity)
//     "AcDbContextDataManager"     -> DICTIONARY
//       "ACDB_ANNOTATIONSCALES"    -> DICTIONARY
//         "*A1"                    -> ACDB_TEXTOBJECTCONTEXTDATA_CLASS
//                                     (340: the SCALE object; the text's
//                                     placement at that scale)
//
// A text the drawing read already has this; one turned annotative here gets
// it when it is written, for the drawing's current scale, so that other
// readers see an annotative text with its scale. The records are added as
// they are; they are not modelled objects.
#include "DxfDrawing.h"

#include "DbText.h"
#include "OdGeMatrix3d.h"

namespace OdDxf::mapping {

namespace {

const char* const kTextContextClass = "ACDB_TEXTOBJECTCONTEXTDATA_CLASS";

bool isAnnotative(const OdDbObject* o) {
  OdResBufPtr chain = o->xData(OdString("AcadAnnotative"));
  int seen = 0;
  for (const OdResBuf* rb = chain ? chain->next() : nullptr; rb; rb = rb->next())
    if (rb->restype() == OdResBuf::kDxfXdInteger16 && ++seen == 2) return rb->getInt16() == 1;
  return false;
}

// The handle of the extension dictionary a record names, or 0.
quint64 extensionDictionary(const Record& r) {
  for (int i = 1; i + 1 < r.size(); ++i)
    if (r.at(i).code() == 102 && r.at(i).trimmed() == "{ACAD_XDICTIONARY" && r.at(i + 1).code() == 360)
      return r.at(i + 1).handle();
  return 0;
}

// Where a new group goes after the record's handle: past its reactors.
int afterHandle(const Record& r) {
  const int h = r.handleIndex();
  int at = h < 0 ? 1 : h + 1;
  if (at < r.size() && r.at(at).code() == 102 && r.at(at).trimmed() == "{ACAD_REACTORS") {
    while (at < r.size() && !(r.at(at).code() == 102 && r.at(at).trimmed() == "}")) ++at;
    if (at < r.size()) ++at;
  }
  return at;
}

class Writer {
 public:
  Writer(DrawingData& d, OdDbDatabase* db) : m_d(d), m_ctx(d.ctx), m_db(db) {}

  void run() {
    const OdDbAnnotationScale* scale = m_db->annotationScales().byName(m_db->annotationScales().current);
    Section* objects = m_d.file.section("OBJECTS");
    if (!m_ctx.markers || !m_ctx.handles || !scale || !scale->handle || !objects) return;
    m_objects = objects;
    for (int s = 0; s < m_d.file.sections().size(); ++s) {
      Section& sec = m_d.file.sections()[s];
      if (sec.name != "ENTITIES" && sec.name != "BLOCKS") continue;
      const std::vector<OdDbStub*>& owners = m_d.owners[size_t(s)];
      for (int i = 0; i < sec.records.size(); ++i) {
        OdDbStub* stub = owners[size_t(i)];
        if (!stub || !stub->object || !sec.records[i].isType("TEXT") || (i > 0 && owners[size_t(i - 1)] == stub)) continue;
        if (stub->object->isA() != OdDbText::desc()) continue;
        const OdDbObjectPtr object = OdDbObjectId(stub).openObject(OdDb::kForRead, true);
        const auto* text = odrxCast<OdDbText>(object.get());
        if (!text || !isAnnotative(text)) continue;
        if (m_db->annotationScales().objectScales.contains(stub->handle.value())) continue;
        addContext(sec.records[i], text, scale->handle);
      }
    }
  }

 private:
  Record* objectRecord(quint64 handle) {
    for (Record& r : m_objects->records)
      if (r.handle() == handle) return &r;
    return nullptr;
  }
  // The handle of the entry of a DICTIONARY record, or 0.
  static quint64 entry(const Record& dict, QLatin1String name) {
    quint64 found = 0;
    forEachDictionaryEntry(dict, [&](const QString& n, quint64 h) {
      if (!found && n == name) found = h;
    });
    return found;
  }
  Record dictionary(quint64 handle, quint64 owner, bool hardOwner, const char* name, quint64 member, int memberCode) {
    Record r = m_d.file.newRecord("DICTIONARY");
    r.setHandle(r.append(5), handle);
    r.setRaw(r.append(102), "{ACAD_REACTORS");
    r.setHandle(r.append(330), owner);
    r.setRaw(r.append(102), "}");
    r.setHandle(r.append(330), owner);
    r.setRaw(r.append(100), "AcDbDictionary");
    if (hardOwner) r.setInteger(r.append(280), 1);
    r.setInteger(r.append(281), 1);
    r.setString(r.append(3), QString::fromLatin1(name));
    r.setHandle(r.append(memberCode), member);
    return r;
  }
  // Records this writer adds belong to no modelled object.
  void appendTo(Section* section, Record r) {
    section->records.append(std::move(r));
    for (size_t s = 0; s < m_d.owners.size(); ++s)
      if (&m_d.file.sections()[int(s)] == section) m_d.owners[s].push_back(nullptr);
  }
  void append(Record r) { appendTo(m_objects, std::move(r)); }

  void addContext(Record& entity, const OdDbText* text, quint64 scale) {
    const quint64 owner = entity.handle();
    quint64 xdict = extensionDictionary(entity);
    Record* existing = xdict ? objectRecord(xdict) : nullptr;
    if (xdict && !existing) return;  // a dictionary the file does not hold: left alone
    if (existing && entry(*existing, QLatin1String("AcDbContextDataManager"))) return;
    const quint64 manager = m_ctx.newHandle(), scales = m_ctx.newHandle(), context = m_ctx.newHandle();
    if (existing) {
      existing->setString(existing->append(3), QStringLiteral("AcDbContextDataManager"));
      existing->setHandle(existing->append(360), manager);
    } else {
      xdict = m_ctx.newHandle();
      const int at = afterHandle(entity);
      entity.insert(at, 102);
      entity.setRaw(at, "{ACAD_XDICTIONARY");
      entity.insert(at + 1, 360);
      entity.setHandle(at + 1, xdict);
      entity.insert(at + 2, 102);
      entity.setRaw(at + 2, "}");
      append(dictionary(xdict, owner, true, "AcDbContextDataManager", manager, 360));
    }
    append(dictionary(manager, xdict, false, "ACDB_ANNOTATIONSCALES", scales, 350));
    append(dictionary(scales, manager, false, "*A1", context, 350));

    Record c = m_d.file.newRecord(kTextContextClass);
    c.setHandle(c.append(5), context);
    c.setRaw(c.append(102), "{ACAD_REACTORS");
    c.setHandle(c.append(330), scales);
    c.setRaw(c.append(102), "}");
    c.setHandle(c.append(330), scales);
    c.setRaw(c.append(100), "AcDbObjectContextData");
    c.setInteger(c.append(70), 4);
    c.setInteger(c.append(290), 1);  // the default context
    c.setRaw(c.append(100), "AcDbAnnotScaleObjectContextData");
    c.setHandle(c.append(340), scale);
    c.setRaw(c.append(100), "AcDbTextObjectContextData");
    c.setInteger(c.append(70), int(text->horizontalMode()));
    c.setReal(c.append(50), text->rotation());
    // Placement in the text's own plane, as the text's points are kept.
    const OdGePoint3d position = text->position(), alignment = text->alignmentPoint();
    const OdGeMatrix3d toPlane = OdGeMatrix3d::worldToPlane(text->normal());
    const OdGePoint3d p = OdGePoint3d(position).transformBy(toPlane), a = OdGePoint3d(alignment).transformBy(toPlane);
    c.setReal(c.append(10), p.x);
    c.setReal(c.append(20), p.y);
    c.setReal(c.append(11), a.x);
    c.setReal(c.append(21), a.y);
    append(std::move(c));
    addClass();
  }

  // The class of the context-data records, in CLASSES when the drawing has
  // that section and does not list it yet.
  void addClass() {
    Section* classes = m_d.file.section("CLASSES");
    if (!classes || m_classAdded) return;
    m_classAdded = true;
    for (const Record& r : classes->records)
      if (r.isType("CLASS") && r.find(1) >= 0 && r.at(r.find(1)).trimmed() == kTextContextClass) return;
    Record c = m_d.file.newRecord("CLASS");
    c.setRaw(c.append(1), kTextContextClass);
    c.setRaw(c.append(2), "AcDbTextObjectContextData");
    c.setRaw(c.append(3), "ObjectDBX Classes");
    c.setInteger(c.append(90), 1153);
    if (m_ctx.release >= 1018) c.setInteger(c.append(91), 0);
    c.setInteger(c.append(280), 0);
    c.setInteger(c.append(281), 0);
    appendTo(classes, std::move(c));
  }

  DrawingData& m_d;
  Context& m_ctx;
  OdDbDatabase* m_db;
  Section* m_objects = nullptr;
  bool m_classAdded = false;
};

}  // namespace

void addAnnotationContexts(DrawingData& d, OdDbDatabase* db) { Writer(d, db).run(); }

}  // namespace OdDxf::mapping
