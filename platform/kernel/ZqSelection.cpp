#include "ZqSelection.h"
#include "ZqPropertiesKernel.h"
#include "DbPlainClasses.h"
#include <QCoreApplication>

namespace {

// One alternative of a pattern against the text, both case-folded.
bool matchOne(const QChar* t, const QChar* tEnd, const QChar* p, const QChar* pEnd) {
  while (p != pEnd) {
    const QChar c = *p;
    if (c == '*') {
      while (p != pEnd && *p == '*') ++p;
      if (p == pEnd) return true;
      for (const QChar* s = t; s <= tEnd; ++s)
        if (matchOne(s, tEnd, p, pEnd)) return true;
      return false;
    }
    if (t == tEnd) return false;
    const QChar ch = *t;
    bool ok = false;
    if (c == '?') {
      ok = true;
    } else if (c == '#') {
      ok = ch.isDigit();
    } else if (c == '@') {
      ok = ch.isLetter();
    } else if (c == '.') {
      ok = !ch.isLetterOrNumber();
    } else if (c == '`' && p + 1 != pEnd) {
      ++p;
      ok = *p == ch;
    } else if (c == '[') {
      const QChar* q = p + 1;
      const bool negate = q != pEnd && *q == '~';
      if (negate) ++q;
      bool in = false;
      const QChar* start = q;
      while (q != pEnd && (*q != ']' || q == start)) {
        if (q + 2 < pEnd && q[1] == '-' && q[2] != ']') {
          in = in || (ch >= q[0] && ch <= q[2]);
          q += 3;
        } else {
          in = in || *q == ch;
          ++q;
        }
      }
      if (q == pEnd) {
        ok = ch == '[';  // no closing bracket: a plain '['
      } else {
        ok = in != negate;
        p = q;
      }
    } else {
      ok = c == ch;
    }
    if (!ok) return false;
    ++p;
    ++t;
  }
  return t == tEnd;
}

// Splits a pattern at the commas that are not quoted by a back quote.
QStringList alternatives(const QString& pattern) {
  QStringList out;
  QString current;
  for (int i = 0; i < pattern.size(); ++i) {
    if (pattern[i] == '`' && i + 1 < pattern.size()) {
      current += pattern[i];
      current += pattern[++i];
    } else if (pattern[i] == ',') {
      out << current;
      current.clear();
    } else {
      current += pattern[i];
    }
  }
  out << current;
  return out;
}

QString layerName(const OdDbObject* object) {
  const OdDbEntity* e = odrxCast<OdDbEntity>(object);
  return e ? e->layer().qstring() : QString();
}

OdDbObjectIdArray entitiesOf(const OdDbObjectId& block) {
  OdDbObjectPtr b = block.openObject();
  auto* btr = odrxCast<OdDbBlockTableRecord>(b.get());
  return btr ? btr->entityIds() : OdDbObjectIdArray();
}

}  // namespace

bool zqWildcardMatch(const QString& text, const QString& pattern) {
  const QString t = text.toCaseFolded();
  for (QString alt : alternatives(pattern.toCaseFolded())) {
    alt = alt.trimmed();
    const bool negate = alt.startsWith('~');
    if (negate) alt.remove(0, 1);
    const bool hit = matchOne(t.constData(), t.constData() + t.size(), alt.constData(), alt.constData() + alt.size());
    if (hit != negate) return true;
  }
  return false;
}

bool CZqSelectionFilter::ParseSpace(const QString& word, Space& space) {
  const QString w = word.trimmed();
  auto is = [&](const char* english) {
    return w.compare(QLatin1String(english), Qt::CaseInsensitive) == 0 ||
           w.compare(QCoreApplication::translate("CZqSelection", english), Qt::CaseInsensitive) == 0;
  };
  if (is(QT_TRANSLATE_NOOP("CZqSelection", "model"))) space = kModelSpace;
  else if (is(QT_TRANSLATE_NOOP("CZqSelection", "paper"))) space = kPaperSpace;
  else if (is(QT_TRANSLATE_NOOP("CZqSelection", "all"))) space = kAllSpaces;
  else return false;
  return true;
}

CZqObjectPlace CZqObjectPlace::Of(const OdDbObject* object) {
  CZqObjectPlace place;
  if (!object) return place;
  OdDbObjectPtr owner = object->ownerId().openObject();
  auto* btr = odrxCast<OdDbBlockTableRecord>(owner.get());
  if (!btr) return place;
  place.block = btr->getName().qstring();
  place.space = btr->isModelSpace() ? QStringLiteral("model") : btr->isPaperSpace() ? QStringLiteral("paper") : QStringLiteral("block");
  OdDbObjectPtr layout = btr->isLayout() ? oddbLayoutOf(btr->objectId()).openObject() : OdDbObjectPtr();
  if (auto* l = odrxCast<OdDbLayout>(layout.get())) place.layout = l->getLayoutName().qstring();
  return place;
}

bool CZqSelectionFilter::Matches(const OdDbObject* object) const {
  if (!object) return false;
  if (!types.isEmpty()) {
    const QString dxf = object->isA()->dxfName().qstring();
    CZqPropertyBase* pe = CZqPropertyPEClassFactory::providerFor(object);
    const QString shown = pe ? pe->GetClassName(object).qstring() : QString();
    if (!zqWildcardMatch(dxf, types) && (shown.isEmpty() || !zqWildcardMatch(shown, types))) return false;
  }
  if (!layers.isEmpty() && !zqWildcardMatch(layerName(object), layers)) return false;
  if (space && *space != kAllSpaces) {
    const QString where = CZqObjectPlace::Of(object).space;
    if (where != (*space == kModelSpace ? QLatin1String("model") : QLatin1String("paper"))) {
      // A block's contents are asked for by blocks, not by space.
      if (!(blocks && where == QLatin1String("block"))) return false;
    }
  }
  return true;
}

bool CZqSelectionFilter::ParseRecordKind(const QString& word, OdDbObjectId (OdDbDatabase::**table)() const,
                                         const char** dictionary) {
  // Symbol tables by their getter; the objects of a dictionary of the
  // named-objects dictionary by the dictionary's name.
  struct Kind {
    const char* word;
    const char* type;
    OdDbObjectId (OdDbDatabase::*table)() const;
    const char* dictionary;
  };
  static const Kind kKinds[] = {
      {"layers", "LAYER", &OdDbDatabase::getLayerTableId, nullptr},
      {"linetypes", "LTYPE", &OdDbDatabase::getLinetypeTableId, nullptr},
      {"textstyles", "STYLE", &OdDbDatabase::getTextStyleTableId, nullptr},
      {"dimstyles", "DIMSTYLE", &OdDbDatabase::getDimStyleTableId, nullptr},
      {"views", "VIEW", &OdDbDatabase::getViewTableId, nullptr},
      {"vports", "VPORT", &OdDbDatabase::getViewportTableId, nullptr},
      {"groups", "GROUP", &OdDbDatabase::getNamedObjectsDictionaryId, "ACAD_GROUP"},
      {"mlinestyles", "MLINESTYLE", &OdDbDatabase::getNamedObjectsDictionaryId, "ACAD_MLINESTYLE"},
      {"tablestyles", "TABLESTYLE", &OdDbDatabase::getNamedObjectsDictionaryId, "ACAD_TABLESTYLE"},
  };
  const QString w = word.trimmed();
  for (const Kind& k : kKinds)
    if (w.compare(QLatin1String(k.word), Qt::CaseInsensitive) == 0 || w.compare(QLatin1String(k.type), Qt::CaseInsensitive) == 0) {
      *table = k.table;
      if (dictionary) *dictionary = k.dictionary;
      return true;
    }
  return false;
}

bool CZqSelectionFilter::Select(OdDbDatabase* db, OdDbObjectIdArray& out, QString* why) const {
  out.clear();
  if (!db) return false;
  if (!records.isEmpty()) {
    for (const QString& word : records.split(',', Qt::SkipEmptyParts)) {
      OdDbObjectId (OdDbDatabase::*table)() const = nullptr;
      const char* dictionary = nullptr;
      if (!ParseRecordKind(word, &table, &dictionary)) {
        if (why)
          *why = QCoreApplication::translate("CZqSelection", "\"%1\" names no kind of record: use layers, linetypes, textstyles, dimstyles, views, vports, groups, mlinestyles or tablestyles.")
                     .arg(word.trimmed());
        return false;
      }
      auto take = [&](const OdDbObjectId& id, const QString& name) {
        if (!id.isNull() && !id.isErased() && (names.isEmpty() || zqWildcardMatch(name, names)) && !out.contains(id))
          out.append(id);
      };
      if (dictionary) {
        // A multiline style shows its own copy of the name.
        OdDbObjectPtr d = OdDbDictionary::findPath((db->*table)(), {OdString(dictionary)}).openObject();
        if (auto* dict = odrxCast<OdDbDictionary>(d.get()))
          for (const OdDbDictionary::Entry& e : dict->entries()) {
            OdDbObjectPtr o = e.second.openObject();
            auto* style = odrxCast<OdDbMlineStyle>(o.get());
            take(e.second, style ? style->name().qstring() : e.first.qstring());
          }
        continue;
      }
      OdDbObjectPtr t = (db->*table)().openObject();
      auto* symbols = odrxCast<OdDbSymbolTable>(t.get());
      if (!symbols) continue;
      for (const OdDbObjectId& id : symbols->recordIds()) {
        if (id.isErased()) continue;
        OdDbObjectPtr rec = id.openObject();
        take(id, static_cast<OdDbSymbolTableRecord*>(rec.get())->getName().qstring());
      }
    }
    return true;
  }
  if (!handles.isEmpty()) {
    for (const QString& h : handles) {
      const OdDbObjectId id = db->getOdDbObjectId(OdDbHandle(OdString(h.trimmed())));
      if (id.isNull() || id.isErased()) {
        if (why) *why = QCoreApplication::translate("CZqSelection", "The drawing has no object with handle %1.").arg(h.trimmed());
        return false;
      }
      OdDbObjectPtr obj = id.openObject();
      if (Matches(obj.get()) && !out.contains(id)) out.append(id);
    }
    return true;
  }
  const Space where = space.value_or(kModelSpace);
  OdDbObjectIdArray blocksInOrder;
  if (where != kPaperSpace) blocksInOrder.append(db->getModelSpaceId());
  OdDbObjectPtr bt = db->getBlockTableId().openObject();
  const OdDbObjectIdArray records = bt ? static_cast<OdDbSymbolTable*>(bt.get())->recordIds() : OdDbObjectIdArray();
  if (where != kModelSpace) {
    // The layouts: *Paper_Space first, then *Paper_Space0, ... as the table has them.
    if (!db->getPaperSpaceId().isNull()) blocksInOrder.append(db->getPaperSpaceId());
    for (const OdDbObjectId& r : records) {
      OdDbObjectPtr rec = r.openObject();
      auto* btr = odrxCast<OdDbBlockTableRecord>(rec.get());
      if (btr && btr->isPaperSpace() && r != db->getPaperSpaceId()) blocksInOrder.append(r);
    }
  }
  if (blocks)
    for (const OdDbObjectId& r : records) {
      OdDbObjectPtr rec = r.openObject();
      auto* btr = odrxCast<OdDbBlockTableRecord>(rec.get());
      if (btr && !btr->isLayout()) blocksInOrder.append(r);
    }
  const bool filtering = !types.isEmpty() || !layers.isEmpty();
  for (const OdDbObjectId& b : blocksInOrder)
    for (const OdDbObjectId& id : entitiesOf(b)) {
      if (!filtering) {
        out.append(id);
        continue;
      }
      OdDbObjectPtr obj = id.openObject();
      if (Matches(obj.get())) out.append(id);
    }
  return true;
}

namespace {
OdDbObjectIdArray g_previous;
}

void CZqSelectionFilter::SetPrevious(const OdDbObjectIdArray& ids) { g_previous = ids; }
const OdDbObjectIdArray& CZqSelectionFilter::Previous() { return g_previous; }

bool CZqSelectionFilter::SelectByAnswer(OdDbDatabase* db, const QString& answer, OdDbObjectIdArray& out, QString* why) {
  out.clear();
  const QString a = answer.trimmed();
  if (a.compare("P", Qt::CaseInsensitive) == 0 || a.compare("Previous", Qt::CaseInsensitive) == 0) {
    for (const OdDbObjectId& id : g_previous)
      if (!id.isErased()) out.append(id);
    return true;
  }
  if (a.compare("ALL", Qt::CaseInsensitive) == 0) return CZqSelectionFilter().Select(db, out, why);
  CZqSelectionFilter filter;
  QStringList words;
  bool criteria = false;
  for (const QString& word : a.split(' ', Qt::SkipEmptyParts)) {
    const int eq = word.indexOf('=');
    const QString key = eq > 0 ? word.left(eq) : word, value = eq > 0 ? word.mid(eq + 1) : QString();
    if (eq > 0 && key.compare("Type", Qt::CaseInsensitive) == 0) {
      filter.types = value;
    } else if (eq > 0 && key.compare("Layer", Qt::CaseInsensitive) == 0) {
      filter.layers = value;
    } else if (eq > 0 && key.compare("Space", Qt::CaseInsensitive) == 0) {
      Space sp;
      if (!ParseSpace(value, sp)) {
        if (why) *why = QCoreApplication::translate("CZqSelection", "Space takes model, paper or all, not \"%1\".").arg(value);
        return false;
      }
      filter.space = sp;
    } else if (eq < 0 && word.compare("Blocks", Qt::CaseInsensitive) == 0) {
      filter.blocks = true;
    } else {
      words << word;
      continue;
    }
    criteria = true;
  }
  if (criteria && words.isEmpty()) return filter.Select(db, out, why);
  // Kinds first (LINE, Circle, *TEXT), then handles.
  CZqSelectionFilter byKind = filter;
  byKind.types = words.join(',');
  if (!byKind.Select(db, out, why)) return false;
  if (!out.isEmpty()) return true;
  CZqSelectionFilter byHandle = filter;
  for (const QString& w : words) {
    bool ok = false;
    w.toULongLong(&ok, 16);
    if (!ok) return true;  // neither a kind nor a handle: nothing found
    byHandle.handles << w;
  }
  return byHandle.Select(db, out, why);
}
