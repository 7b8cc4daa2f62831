// Dimension variables: their table (DimVars.def), checks and text, the
// dimension style record, and the overrides a dimension keeps in its
// extended data.
#include "DbDimStyle.h"

#include "DbDatabase.h"

#include <cmath>
#include <cstring>

namespace OdDbDimVar {
namespace {

// clang-format off
const Info kInfo[kCount] = {
#define DIMVAR(Name, Setter, Code, K, Type, Default, L, Lo, Hi, Since, Row) \
  {k_##Name, #Name, Code, Kind::K, Limit::L, double(Lo), double(Hi), Since, Row},
#include "DimVars.def"
};
// clang-format on

Value defaultOf(Id id) {
  switch (id) {
#define DIMVAR(Name, Setter, Code, K, Type, Default, L, Lo, Hi, Since, Row) \
  case k_##Name: return of<Type>(Default);
#include "DimVars.def"
    default: return Value();
  }
}

// The alternative of Value that a kind uses.
size_t slotOf(Kind k) {
  switch (k) {
    case Kind::Real:
    case Kind::Angle: return 0;
    case Kind::Int:
    case Kind::Char:
    case Kind::LineWeight: return 1;
    case Kind::Bool: return 2;
    case Kind::String: return 3;
    case Kind::Color: return 4;
    default: return 5;
  }
}

bool validLineWeight(int v) {
  static const int kWeights[] = {0, 5, 9, 13, 15, 18, 20, 25, 30, 35, 40, 50, 53, 60,
                                 70, 80, 90, 100, 106, 120, 140, 158, 200, 211, -1, -2, -3};
  for (int w : kWeights)
    if (w == v) return true;
  return false;
}

QString number(double v) { return QString::number(v, 'g', 17); }

}  // namespace

std::vector<RowUse> rowUses(const char* row) {
  struct Entry {
    const char* row;
    Id id;
    Part part;
  };
  static const Entry kEntries[] = {
#define DIMVAR(Name, Setter, Code, K, Type, Default, L, Lo, Hi, Since, Row) {Row, k_##Name, Part::Whole},
#define DIMROW(Name, Row, P) {Row, k_##Name, Part::P},
#include "DimVars.def"
  };
  std::vector<RowUse> out;
  if (!row || !*row) return out;
  for (const Entry& e : kEntries)
    if (std::strcmp(e.row, row) == 0) out.push_back({e.id, e.part});
  return out;
}

Value Info::defaultValue() const { return defaultOf(id); }
OdString Info::upperName() const { return OdString(QString::fromLatin1(name).toUpper()); }

const Info& info(Id id) { return kInfo[id]; }

const Info* find(const OdString& name) {
  QString n = name.qstring().trimmed().toLower();
  if (!n.startsWith(QLatin1String("dim"))) n.prepend(QLatin1String("dim"));
  for (const Info& i : kInfo)
    if (n == QLatin1String(i.name)) return &i;
  return nullptr;
}

const Info* byCode(int code) {
  if (code == 0) return nullptr;
  for (const Info& i : kInfo)
    if (i.code == code) return &i;
  return nullptr;
}

bool check(Id id, const Value& v, OdString* why) {
  const Info& i = info(id);
  auto fail = [&](const QString& text) {
    if (why) *why = OdString(text);
    return false;
  };
  const QString name = i.upperName().qstring();
  if (v.index() != slotOf(i.kind)) return fail(QStringLiteral("%1 does not take a value of this kind").arg(name));
  if (i.kind == Kind::Real || i.kind == Kind::Angle) {
    const double d = std::get<double>(v);
    if (!std::isfinite(d)) return fail(QStringLiteral("%1 must be a finite number").arg(name));
  }
  if (i.kind == Kind::LineWeight && !validLineWeight(std::get<int>(v)))
    return fail(QStringLiteral("%1 must be a line weight").arg(name));
  if (i.kind == Kind::Color && std::get<OdCmColor>(v).colorMethod() == OdCmEntityColor::kNone)
    return fail(QStringLiteral("%1 must be a colour").arg(name));
  double d = 0;
  if (std::holds_alternative<double>(v)) d = std::get<double>(v);
  else if (std::holds_alternative<int>(v)) d = std::get<int>(v);
  else return true;
  switch (i.limit) {
    case Limit::Any: return true;
    case Limit::NonNegative:
      return d >= 0 ? true : fail(QStringLiteral("%1 must not be negative").arg(name));
    case Limit::Positive: return d > 0 ? true : fail(QStringLiteral("%1 must be greater than 0").arg(name));
    case Limit::NonZero: return d != 0 ? true : fail(QStringLiteral("%1 must not be 0").arg(name));
    case Limit::Range:
      if (d >= i.lo - 1e-12 && d <= i.hi + 1e-12) return true;
      return fail(QStringLiteral("%1 must be from %2 to %3").arg(name, number(i.lo), number(i.hi)));
  }
  return true;
}

OdString toString(Id id, const Value& v) {
  const Info& i = info(id);
  switch (v.index()) {
    case 0: return OdString(number(std::get<double>(v)));
    case 1:
      if (i.kind == Kind::Char) return OdString(QString(QChar(char16_t(std::get<int>(v)))));
      return OdString(QString::number(std::get<int>(v)));
    case 2: return OdString(std::get<bool>(v) ? "1" : "0");
    case 3: return std::get<OdString>(v);
    case 4: return std::get<OdCmColor>(v).description();
    default: {
      const OdDbObjectId id5 = std::get<OdDbObjectId>(v);
      if (id5.isNull()) return OdString();
      OdDbObjectPtr o = id5.openObject(OdDb::kForRead, true);
      auto* rec = odrxCast<OdDbSymbolTableRecord>(o.get());
      return rec ? rec->getName() : OdString(id5.getHandle().ascii());
    }
  }
}

Values::Values() {
  for (int k = 0; k < kCount; ++k) m_values[k] = defaultOf(Id(k));
}

void Values::set(Id id, const Value& v) {
  OdString why;
  if (!check(id, v, &why)) throw OdError(eInvalidInput, why);
  m_values[id] = v;
}

}  // namespace OdDbDimVar

void OdDbDimStyleTableRecord::setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v) {
  OdString why;
  if (!OdDbDimVar::check(id, v, &why)) throw OdError(eInvalidInput, why);
  assertWriteEnabled();
  m_values.set(id, v);
}

void OdDbDimStyleTableRecord::copyFrom(const OdRxObject* source) {
  OdDbSymbolTableRecord::copyFrom(source);
  m_values = static_cast<const OdDbDimStyleTableRecord*>(source)->m_values;
}

// ---------------------------------------------------------------------------
// Overrides

namespace OdDbDimStyleOverrides {
namespace {

using namespace OdDbDimVar;

const OdString kAcad("ACAD");
const OdString kDstyle("DSTYLE");

// The value item of one override, in the chain form of extended data.
OdResBufPtr valueItem(Id id, const Value& v) {
  switch (info(id).kind) {
    case Kind::Real: return OdResBuf::newRb(OdResBuf::kDxfXdReal, std::get<double>(v));
    case Kind::Angle: return OdResBuf::newRb(OdResBuf::kDxfXdReal, std::get<double>(v) * 180.0 / M_PI);
    case Kind::Int:
    case Kind::Char:
    case Kind::LineWeight: return OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(std::get<int>(v)));
    case Kind::Bool: return OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(std::get<bool>(v) ? 1 : 0));
    case Kind::String: return OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, std::get<OdString>(v));
    case Kind::Color:
      return OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(std::get<OdCmColor>(v).colorIndex()));
    default: {
      OdResBufPtr rb = OdResBuf::newRb(OdResBuf::kDxfXdHandle);
      rb->setHandle(std::get<OdDbObjectId>(v).getHandle().value());
      return rb;
    }
  }
}

// The value of an override item, or false when the item does not fit the
// variable's kind.
bool readValue(const Info& i, const OdResBuf* rb, OdDbDatabase* db, Value& out) {
  const OdResBuf::ValueKind k = OdResBuf::kindOf(rb->restype());
  const bool integer = k == OdResBuf::kInt16 || k == OdResBuf::kInt32;
  switch (i.kind) {
    case Kind::Real:
    case Kind::Angle:
      if (k != OdResBuf::kDouble) return false;
      out = i.kind == Kind::Angle ? rb->getDouble() * M_PI / 180.0 : rb->getDouble();
      return true;
    case Kind::Int:
    case Kind::Char:
    case Kind::LineWeight:
      if (!integer) return false;
      out = int(rb->getInt64());
      return true;
    case Kind::Bool:
      if (!integer) return false;
      out = rb->getInt64() != 0;
      return true;
    case Kind::String:
      if (k != OdResBuf::kString) return false;
      out = rb->getString();
      return true;
    case Kind::Color: {
      if (!integer) return false;
      const int64_t aci = rb->getInt64();
      if (aci < 0 || aci > 256) return false;
      out = aci == 0 ? OdCmColor::byBlock() : aci == 256 ? OdCmColor::byLayer() : OdCmColor::fromIndex(int(aci));
      return true;
    }
    default:
      if (k != OdResBuf::kHandle) return false;
      out = db ? db->getOdDbObjectId(OdDbHandle(rb->getHandle())) : OdDbObjectId();
      return true;
  }
}

// The ACAD chain split around its DSTYLE list: items before "DSTYLE", the
// pairs of the list, items after its closing brace.
struct Split {
  std::vector<OdResBufPtr> before, after;
  std::vector<std::pair<OdResBufPtr, OdResBufPtr>> pairs;  // 1070 code, value
  bool found = false;
};

Split split(const OdDbObject* obj) {
  Split s;
  OdResBufPtr chain = obj->xData(kAcad);
  const OdResBuf* p = chain ? chain->next() : nullptr;  // after the 1001 item
  for (; p; p = p->next()) {
    if (!s.found && p->restype() == OdResBuf::kDxfXdAsciiString && p->getString() == kDstyle && p->next() &&
        p->next()->restype() == OdResBuf::kDxfXdControlString && p->next()->getString() == OdString("{")) {
      s.found = true;
      p = p->next()->next();
      while (p && !(p->restype() == OdResBuf::kDxfXdControlString && p->getString() == OdString("}"))) {
        OdResBufPtr code = p->copyChain();
        code->setNext(nullptr);
        OdResBufPtr value;
        if (p->next() && !(p->next()->restype() == OdResBuf::kDxfXdControlString)) {
          value = p->next()->copyChain();
          value->setNext(nullptr);
          p = p->next();
        }
        s.pairs.emplace_back(code, value);
        p = p->next();
      }
      if (!p) break;
      continue;
    }
    OdResBufPtr item = p->copyChain();
    item->setNext(nullptr);
    (s.found ? s.after : s.before).push_back(item);
  }
  return s;
}

void store(OdDbObject* obj, const Split& s) {
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, kAcad);
  OdResBuf* tail = head.get();
  auto add = [&](const OdResBufPtr& rb) { tail = tail->setNext(rb.get()); };
  for (const OdResBufPtr& rb : s.before) add(rb);
  if (!s.pairs.empty()) {
    add(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, kDstyle));
    add(OdResBuf::newRb(OdResBuf::kDxfXdControlString, "{"));
    for (const auto& [code, value] : s.pairs) {
      add(code);
      if (value) add(value);
    }
    add(OdResBuf::newRb(OdResBuf::kDxfXdControlString, "}"));
  }
  for (const OdResBufPtr& rb : s.after) add(rb);
  obj->setXData(head.get());
}

}  // namespace

std::vector<Entry> get(const OdDbObject* obj) {
  std::vector<Entry> out;
  if (!obj) return out;
  for (const auto& [code, value] : split(obj).pairs) {
    if (!value || OdResBuf::kindOf(code->restype()) != OdResBuf::kInt16) continue;
    const Info* i = byCode(int(code->getInt64()));
    Value v;
    if (!i || !readValue(*i, value.get(), obj->database(), v) || !check(i->id, v)) continue;
    out.push_back({i->id, v});
  }
  return out;
}

// Walks the list in place (no copy of its items): the palette asks for
// every variable of every selected dimension.
bool find(const OdDbObject* obj, Id id, Value* value) {
  const int code = info(id).code;
  if (!obj || !code) return false;
  const OdResBuf* chain = obj->xDataChain(kAcad);
  bool inList = false;
  for (const OdResBuf* p = chain ? chain->next() : nullptr; p; p = p->next()) {
    if (!inList) {
      const OdResBuf* brace = p->next();
      if (p->restype() == OdResBuf::kDxfXdAsciiString && p->getString() == kDstyle && brace &&
          brace->restype() == OdResBuf::kDxfXdControlString && brace->getString() == OdString("{")) {
        inList = true;
        p = brace;
      }
      continue;
    }
    if (p->restype() == OdResBuf::kDxfXdControlString) return false;  // the closing brace
    const OdResBuf* item = p->next();
    if (!item || item->restype() == OdResBuf::kDxfXdControlString) return false;
    Value v;
    if (OdResBuf::kindOf(p->restype()) == OdResBuf::kInt16 && p->getInt64() == code &&
        readValue(info(id), item, obj->database(), v) && check(id, v)) {
      if (value) *value = v;
      return true;
    }
    p = item;
  }
  return false;
}

void set(OdDbObject* obj, Id id, const Value& value) {
  OdString why;
  if (!check(id, value, &why)) throw OdError(eInvalidInput, why);
  const Info& i = info(id);
  if (i.code == 0)
    throw OdError(eInvalidInput, OdString(QStringLiteral("%1 cannot be overridden").arg(i.upperName().qstring())));
  Split s = split(obj);
  OdResBufPtr item = valueItem(id, value);
  bool replaced = false;
  for (auto& [code, v] : s.pairs)
    if (OdResBuf::kindOf(code->restype()) == OdResBuf::kInt16 && code->getInt64() == i.code) {
      v = item;
      replaced = true;
    }
  if (!replaced) s.pairs.emplace_back(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(i.code)), item);
  store(obj, s);
}

void remove(OdDbObject* obj, Id id) {
  Split s = split(obj);
  const size_t was = s.pairs.size();
  std::erase_if(s.pairs, [&](const auto& p) {
    return id == kCount || (OdResBuf::kindOf(p.first->restype()) == OdResBuf::kInt16 &&
                            p.first->getInt64() == info(id).code);
  });
  if (s.pairs.size() != was) store(obj, s);
}

std::vector<Line> effective(const OdDbObject* obj, const OdDbDimStyleTableRecord* style) {
  std::vector<Line> out;
  const std::vector<Entry> overrides = get(obj);
  for (int k = 0; k < kCount; ++k) {
    const Id id = Id(k);
    Line line{id, style ? style->dimVar(id) : info(id).defaultValue(), false};
    for (const Entry& e : overrides)
      if (e.id == id) {
        line.value = e.value;
        line.overridden = true;
      }
    out.push_back(line);
  }
  return out;
}

}  // namespace OdDbDimStyleOverrides
