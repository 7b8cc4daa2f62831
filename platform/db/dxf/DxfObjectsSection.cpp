// The OBJECTS section. Records of the types listed in kObjects become
// database objects, read and patched like table records: each keeps its
// handle, its owner (the first 330 outside the 102 groups) and its record,
// to which it is bound, so that saving patches only the tags of an edited
// object and keeps every other record byte for byte. Records of other
// types (extension data of other programs, XRECORD, ...) stay in the file
// as they are; a dictionary entry that names one has the null id.
//
// Dictionaries (DICTIONARY) hold their entries by name, in record order, so
// that code finds an object by its path from the named-objects dictionary,
// the section's first record:
//   OdDbDictionary::findPath(db->getNamedObjectsDictionaryId(), {"ACAD_GROUP", "G1"})
// Renaming an entry rewrites that entry's name (group 3) and nothing else;
// entries cannot be added or removed when saving.
#include "DbPlainClasses.h"
#include "DxfDrawing.h"

#include <QtMath>

namespace OdDxf::mapping {
namespace {

void dictionaryFields(Fields<OdDbDictionary>& f) {
  RecordIO& io = f.io();
  OdDbDictionary* dict = f.object();
  f.subclass("AcDbDictionary");
  Record& r = io.record();
  if (io.reading()) {
    forEachDictionaryEntry(r, [&](const QString& name, quint64 h) {
      dict->appendEntryInternal(OdString(name), io.ctx().db->getOdDbObjectId(OdDbHandle(h)));
    });
    return;
  }
  if (io.mode() == RecordIO::Create)
    throw MapError{QStringLiteral("a new dictionary cannot be written")};
  const auto& now = dict->entries();
  size_t k = 0;
  for (int i = 1; i + 1 < r.size(); ++i) {
    if (r.at(i).code() != 3 || (r.at(i + 1).code() != 350 && r.at(i + 1).code() != 360)) continue;
    if (k < now.size() && r.str(i) != now[k].first.qstring()) writeString(io.ctx(), r, i, now[k].first.qstring());
    ++k;
  }
  if (k != now.size())
    throw MapError{QStringLiteral("dictionary (handle %1): entries cannot be added or removed when saving")
                       .arg(QString::number(r.handle(), 16).toUpper())};
}

void groupFields(Fields<OdDbGroup>& f) {
  using G = OdDbGroup;
  RecordIO& io = f.io();
  f.subclass("AcDbGroup");
  f.string(300, &G::description, &G::setDescription);
  if (io.reading()) {
    f.object()->setAnonymousInternal(io.integer(70, 0) != 0);
    OdDbObjectIdArray members;
    for (int i = io.find(340); i >= 0; i = io.find(340, i + 1))
      members.append(io.ctx().db->getOdDbObjectId(OdDbHandle(io.record().at(i).handle())));
    f.object()->setMembersInternal(members);
  } else {
    io.skip(70);
  }
  f.integer(
      71, [](const G* g) { return g->isSelectable() ? 1 : 0; }, [](G* g, int v) { g->setSelectable(v != 0); }, 1);
}

void mlineStyleFields(Fields<OdDbMlineStyle>& f) {
  using M = OdDbMlineStyle;
  RecordIO& io = f.io();
  f.subclass("AcDbMlineStyle");
  // The style's own copy of its name; the dictionary holds the other.
  f.string(2, &M::name, [](M* m, const OdString& s) { m->setNameInternal(s); });
  f.integer(70, &M::flags, &M::setFlags);
  f.string(3, &M::description, &M::setDescription);
  if (io.reading()) {
    f.object()->setFillColor(readColor(io, false));
  } else if (f.changed(&M::fillColor)) {
    writeColorIndex(io, f.object()->fillColor(), 1, false);
    writeTrueColor(io, f.object()->fillColor());
  } else {
    io.skip(62);
  }
  // The file keeps the cap angles in degrees.
  f.real(
      51, [](const M* m) { return qRadiansToDegrees(m->startAngle()); },
      [](M* m, double deg) { m->setStartAngle(qDegreesToRadians(deg)); }, 90.0);
  f.real(
      52, [](const M* m) { return qRadiansToDegrees(m->endAngle()); },
      [](M* m, double deg) { m->setEndAngle(qDegreesToRadians(deg)); }, 90.0);
  if (io.reading()) f.object()->setNumElementsInternal(int(io.integer(71, 0)));
}

// The title and header rows' switches share group 280 with the record's
// version (R2007 on); they are not mapped.
void tableStyleFields(Fields<OdDbTableStyle>& f) {
  using T = OdDbTableStyle;
  f.subclass("AcDbTableStyle");
  f.string(3, &T::description, &T::setDescription);
  f.integer(70, &T::flowDirection, &T::setFlowDirection);
  f.io().skip(71);
  f.real(40, &T::horzCellMargin, &T::setHorzCellMargin, 0.06);
  f.real(41, &T::vertCellMargin, &T::setVertCellMargin, 0.06);
}

void layoutFields(Fields<OdDbLayout>& f) {
  using L = OdDbLayout;
  RecordIO& io = f.io();
  f.subclass("AcDbLayout");
  f.string(1, &L::getLayoutName, &L::setLayoutName);
  f.integer(71, &L::getTabOrder, &L::setTabOrder);
  if (io.reading()) {
    const int i = io.find(330);
    if (i >= 0) f.object()->setBlockTableRecordIdInternal(io.ctx().db->getOdDbObjectId(OdDbHandle(io.record().at(i).handle())));
  }
}

//                                   record        class                      since  fields
constexpr ClassMapping kObjects[] = {
    {"DICTIONARY", &OdDbDictionary::desc, 0,    &fieldsOf<OdDbDictionary, dictionaryFields>, false, true},
    {"GROUP",      &OdDbGroup::desc,      0,    &fieldsOf<OdDbGroup, groupFields>,           false, true},
    {"MLINESTYLE", &OdDbMlineStyle::desc, 0,    &fieldsOf<OdDbMlineStyle, mlineStyleFields>, false, true},
    {"TABLESTYLE", &OdDbTableStyle::desc, 0,    &fieldsOf<OdDbTableStyle, tableStyleFields>, false, true},
    {"LAYOUT",     &OdDbLayout::desc,     0,    &fieldsOf<OdDbLayout, layoutFields>,         false, true},
};

// The owner of an object's record: its first 330 outside 102 groups.
quint64 ownerHandle(const Record& r) {
  for (int i = 1, depth = 0; i < r.size(); ++i) {
    const Tag& t = r.at(i);
    if (t.code() == 102) depth += t.trimmed().startsWith("{") ? 1 : -1;
    else if (t.code() == 330 && depth == 0) return t.handle();
    else if (t.code() == 100) break;
  }
  return 0;
}

}  // namespace

const ClassMapping* objectMapping(const OdRxClass* cls) {
  for (const ClassMapping& m : kObjects)
    if (m.desc() == cls) return &m;
  return nullptr;
}

const ClassMapping* objectMapping(QByteArrayView type) {
  for (const ClassMapping& m : kObjects)
    if (type == m.dxfName) return &m;
  return nullptr;
}

void readObjectsSection(DrawingData& d, int s, const std::vector<quint64>& handles,
                        const std::function<OdDbObjectId(OdDbObject*, quint64, int)>& add) {
  Context& ctx = d.ctx;
  Section& sec = d.file.sections()[s];
  // Every object first, so that owners and dictionary entries found later
  // in the section resolve; then their fields.
  std::vector<std::pair<int, OdDbObjectId>> made;
  for (int i = 0; i < sec.records.size(); ++i) {
    const ClassMapping* m = objectMapping(sec.records[i].type());
    const quint64 h = handles[size_t(i)];
    if (!m || !h) continue;
    OdRxObjectPtr obj = m->desc()->create();
    made.emplace_back(i, add(static_cast<OdDbObject*>(obj.get()), h, i));
  }
  for (const auto& [i, id] : made) {
    Record& r = sec.records[i];
    OdDbObjectPtr obj = id.openObject(OdDb::kForWrite);
    RecordIO io(ctx, r, RecordIO::Read);
    readFields(io, obj.get());
    if (const quint64 owner = ownerHandle(r)) obj->setOwnerId(ctx.db->getOdDbObjectId(OdDbHandle(owner)));
    obj->setModified(false);
  }
  if (!made.empty() && made.front().first == 0 && sec.records[0].isType("DICTIONARY") &&
      ctx.db->getNamedObjectsDictionaryId().isNull())
    ctx.db->setNamedObjectsDictionaryIdInternal(made.front().second);
}

}  // namespace OdDxf::mapping
