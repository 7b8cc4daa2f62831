#include "Dimension.h"
#include "ZqAnnotativeRows.h"
#include "ZqCallbacks.h"
#include "ZqInfoFrame.h"
#include "DbDimension.h"
#include "DbSymbolTable.h"
#include "OdResBuf.h"
#include <QHash>
#include <cmath>

namespace ZqDim {

using D = OdDbDimension;
namespace dv = OdDbDimVar;

// --- Choice lists -------------------------------------------------------------------

const ZqChoice kTextMovement[] = {
    {QT_TRANSLATE_NOOP("property_values", "Keep dimline with text"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Move text, add leader"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Move text, no leader"), 2},
};
const ZqChoice kToleranceDisplay[] = {
    {QT_TRANSLATE_NOOP("property_values", "None"), 0},        {QT_TRANSLATE_NOOP("property_values", "Symmetrical"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Deviation"), 2},   {QT_TRANSLATE_NOOP("property_values", "Limits"), 3},
    {QT_TRANSLATE_NOOP("property_values", "Basic"), 4},
};
const ZqChoice kTolerancePosVert[] = {
    {QT_TRANSLATE_NOOP("property_values", "Bottom"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Middle"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Top"), 2},
};
const ZqChoice kCenterMark[] = {
    {QT_TRANSLATE_NOOP("property_values", "Mark"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Line"), 1},
    {QT_TRANSLATE_NOOP("property_values", "None"), 2},
};
const ZqChoice kFraction[] = {
    {QT_TRANSLATE_NOOP("property_values", "Horizontal"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Diagonal"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Not stacked"), 2},
};
// Text above the dimension line: "Below" keeps the number the style
// variable gives it (4), after JIS (3), which the palette does not offer.
const ZqChoice kTextPosVert[] = {
    {QT_TRANSLATE_NOOP("property_values", "Centered"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Above"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Outside"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Below"), 4},
};
const ZqChoice kFit[] = {
    {QT_TRANSLATE_NOOP("property_values", "Text and arrows"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Arrows only"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Text only"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Best fit"), 3},
};
// Tags are the unit variables' own numbers.
const ZqChoice kUnitFormat[] = {
    {QT_TRANSLATE_NOOP("property_values", "Scientific"), 1},    {QT_TRANSLATE_NOOP("property_values", "Decimal"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Engineering"), 3},   {QT_TRANSLATE_NOOP("property_values", "Architectural"), 4},
    {QT_TRANSLATE_NOOP("property_values", "Fractional"), 5},    {QT_TRANSLATE_NOOP("property_values", "Windows Desktop"), 6},
};
const ZqChoice kTextPosHor[] = {
    {QT_TRANSLATE_NOOP("property_values", "Centered"), 0},
    {QT_TRANSLATE_NOOP("property_values", "First extension line"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Second extension line"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Over first extension"), 3},
    {QT_TRANSLATE_NOOP("property_values", "Over second extension"), 4},
};
const ZqChoice kTextDirection[] = {
    {QT_TRANSLATE_NOOP("property_values", "Left-to-right"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Right-to-left"), 1},
};
const ZqChoice kAngleFormat[] = {
    {QT_TRANSLATE_NOOP("property_values", "Decimal degrees"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Deg/min/sec"), 1},
    {QT_TRANSLATE_NOOP("property_values", "Gradians"), 2},
    {QT_TRANSLATE_NOOP("property_values", "Radians"), 3},
};
const ZqChoice kArcSymbol[] = {
    {QT_TRANSLATE_NOOP("property_values", "Preceding Dimension Text"), 0},
    {QT_TRANSLATE_NOOP("property_values", "Above Dimension Text"), 1},
    {QT_TRANSLATE_NOOP("property_values", "None"), 2},
};

// Precision labels, nine per format (precision 0 to 8); they are figures,
// not words, and shown as they are.
#define ZQ_NINE(a, b, c, d, e, f, g, h, i) {{a, 0}, {b, 1}, {c, 2}, {d, 3}, {e, 4}, {f, 5}, {g, 6}, {h, 7}, {i, 8}}
const ZqChoice kPrecisionDecimal[9] = ZQ_NINE("0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.000000", "0.0000000", "0.00000000");
const ZqChoice kPrecisionScientific[9] = ZQ_NINE("0E+01", "0.0E+01", "0.00E+01", "0.000E+01", "0.0000E+01", "0.00000E+01",
                                                 "0.000000E+01", "0.0000000E+01", "0.00000000E+01");
const ZqChoice kPrecisionFractional[9] = ZQ_NINE("0", "0 1/2", "0 1/4", "0 1/8", "0 1/16", "0 1/32", "0 1/64", "0 1/128", "0 1/256");
const ZqChoice kPrecisionEngineering[9] = ZQ_NINE("0'-0\"", "0'-00\"", "0'-000\"", "0'-0000\"", "0'-00000\"", "0'-000000\"",
                                                  "0'-0000000\"", "0'-00000000\"", "0'-000000000\"");
const ZqChoice kPrecisionArchitectural[9] = ZQ_NINE("0'-0\"", "0'-0 1/2\"", "0'-0 1/4\"", "0'-0 1/8\"", "0'-0 1/16\"",
                                                    "0'-0 1/32\"", "0'-0 1/64\"", "0'-0 1/128\"", "0'-0 1/256\"");
const ZqChoice kAnglePrecisionDegrees[9] = ZQ_NINE("0", "0.0", "0.00", "0.000", "0.0000", "0.00000", "0.000000", "0.0000000", "0.00000000");
const ZqChoice kAnglePrecisionDms[9] = ZQ_NINE("0d", "0d00'", "0d00'00\"", "0d00'00.0\"", "0d00'00.00\"", "0d00'00.000\"",
                                               "0d00'00.0000\"", "0d00'00.00000\"", "0d00'00.000000\"");
const ZqChoice kAnglePrecisionGradians[9] = ZQ_NINE("0g", "0.0g", "0.00g", "0.000g", "0.0000g", "0.00000g", "0.000000g",
                                                    "0.0000000g", "0.00000000g");
const ZqChoice kAnglePrecisionRadians[9] = ZQ_NINE("0r", "0.0r", "0.00r", "0.000r", "0.0000r", "0.00000r", "0.000000r",
                                                   "0.0000000r", "0.00000000r");
#undef ZQ_NINE

std::span<const ZqChoice> precisionList(int unitFormat) {
  switch (unitFormat) {
    case 1: return kPrecisionScientific;
    case 3: return kPrecisionEngineering;
    case 4: return kPrecisionArchitectural;
    case 5: return kPrecisionFractional;
    default: return kPrecisionDecimal;  // Decimal and Windows Desktop
  }
}

std::span<const ZqChoice> anglePrecisionList(int angleFormat) {
  switch (angleFormat) {
    case 1: return kAnglePrecisionDms;
    case 2: return kAnglePrecisionGradians;
    case 3: return kAnglePrecisionRadians;
    default: return kAnglePrecisionDegrees;
  }
}

// The standard arrowheads, by the name of the block that draws each (the
// first, closed filled, is drawn without one).
const struct Arrowhead {
  ZqChoice choice;
  const char* block;
} kArrowheads[] = {
    {{QT_TRANSLATE_NOOP("property_values", "Closed filled"), 0}, ""},
    {{QT_TRANSLATE_NOOP("property_values", "Closed blank"), 1}, "_ClosedBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Closed"), 2}, "_Closed"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot"), 3}, "_Dot"},
    {{QT_TRANSLATE_NOOP("property_values", "Architectural tick"), 4}, "_ArchTick"},
    {{QT_TRANSLATE_NOOP("property_values", "Oblique"), 5}, "_Oblique"},
    {{QT_TRANSLATE_NOOP("property_values", "Open"), 6}, "_Open"},
    {{QT_TRANSLATE_NOOP("property_values", "Origin indicator"), 7}, "_Origin"},
    {{QT_TRANSLATE_NOOP("property_values", "Origin indicator 2"), 8}, "_Origin2"},
    {{QT_TRANSLATE_NOOP("property_values", "Right angle"), 9}, "_Open90"},
    {{QT_TRANSLATE_NOOP("property_values", "Open 30"), 10}, "_Open30"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot small"), 11}, "_DotSmall"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot blank"), 12}, "_DotBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Dot small blank"), 13}, "_Small"},
    {{QT_TRANSLATE_NOOP("property_values", "Box"), 14}, "_BoxBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Box filled"), 15}, "_BoxFilled"},
    {{QT_TRANSLATE_NOOP("property_values", "Datum triangle"), 16}, "_DatumBlank"},
    {{QT_TRANSLATE_NOOP("property_values", "Datum triangle filled"), 17}, "_DatumFilled"},
    {{QT_TRANSLATE_NOOP("property_values", "Integral"), 18}, "_Integral"},
    {{QT_TRANSLATE_NOOP("property_values", "None"), 19}, "_None"},
};
// The drawing's own blocks follow the standard ones with tags from here;
// "Custom arrow" closes the list.
constexpr int kFirstUserBlockTag = 100;
constexpr int kCustomArrowTag = -1;
const char* const kCustomArrow = QT_TRANSLATE_NOOP("property_values", "Custom arrow");

// --- Variables by row -----------------------------------------------------------------

// The variable a row shows and the part of it (cached per row name).
struct Use {
  dv::Id id = dv::kCount;
  dv::Part part = dv::Part::Whole;
};

Use useOf(const CZqPropertyDescription& description, bool angular) {
  static QHash<QByteArray, std::pair<Use, Use>> cache;
  const ZqRow* row = ZqRowOf(description);
  if (!row) return {};
  const QByteArray key(row->name);
  auto it = cache.find(key);
  if (it == cache.end()) {
    const std::vector<dv::RowUse> uses = dv::rowUses(row->name);
    std::pair<Use, Use> p;
    if (!uses.empty()) {
      p.first = {uses.front().id, uses.front().part};
      p.second = {uses.back().id, uses.back().part};
    }
    it = cache.insert(key, p);
  }
  return angular ? it->second : it->first;
}

// The text of a prefix/suffix string before and after "<>"; a string
// without the placeholder is all prefix.
QString partOfPost(const QString& post, dv::Part part) {
  const qsizetype at = post.indexOf(QLatin1String("<>"));
  if (at < 0) return part == dv::Part::Before ? post : QString();
  return part == dv::Part::Before ? post.left(at) : post.mid(at + 2);
}
QString withPart(const QString& post, dv::Part part, const QString& text) {
  QString before = partOfPost(post, dv::Part::Before), after = partOfPost(post, dv::Part::After);
  (part == dv::Part::Before ? before : after) = text;
  return before.isEmpty() && after.isEmpty() ? QString() : before + QLatin1String("<>") + after;
}

// Zero suppression: whether the bits show the part suppressed, and the
// bits with it set or cleared.
bool suppresses(int bits, dv::Part part) {
  switch (part) {
    case dv::Part::LeadingZeros: return bits & 4;
    case dv::Part::TrailingZeros: return bits & 8;
    case dv::Part::ZeroFeet: return (bits & 3) == 0 || (bits & 3) == 3;
    case dv::Part::ZeroInches: return (bits & 3) == 0 || (bits & 3) == 2;
    default: return false;
  }
}
int withSuppression(int bits, dv::Part part, bool on) {
  if (part == dv::Part::LeadingZeros) return on ? bits | 4 : bits & ~4;
  if (part == dv::Part::TrailingZeros) return on ? bits | 8 : bits & ~8;
  // The low two bits: 0 both suppressed, 1 neither, 2 inches only, 3 feet only.
  bool feet = suppresses(bits, dv::Part::ZeroFeet), inches = suppresses(bits, dv::Part::ZeroInches);
  (part == dv::Part::ZeroFeet ? feet : inches) = on;
  const int low = feet && inches ? 0 : feet ? 3 : inches ? 2 : 1;
  return (bits & ~3) | low;
}

int currentIndex(std::span<const ZqChoice> choices, int tag) { return ZqChoiceIndex(choices, tag); }

template <bool Angular>
CZqVariant getVar(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  const Use use = useOf(description, Angular);
  if (!dim || use.id == dv::kCount) return CZqVariant();
  const dv::Value v = dim->dimVar(use.id);
  switch (use.part) {
    case dv::Part::Before:
    case dv::Part::After: return CZqVariant(CZqString(partOfPost(std::get<OdString>(v).qstring(), use.part)));
    case dv::Part::Magnitude: return ZqDouble(std::fabs(std::get<double>(v)));
    case dv::Part::Whole: break;
    default: return ZqEnumeration(kZqYesNo, suppresses(std::get<int>(v), use.part) ? 0 : 1);
  }
  switch (dv::info(use.id).kind) {
    case dv::Kind::Real:
    case dv::Kind::Angle: return ZqDouble(std::get<double>(v));
    case dv::Kind::Bool: return ZqEnumeration(kZqYesNo, std::get<bool>(v) ? 0 : 1);
    case dv::Kind::Char: return CZqVariant(CZqString(QString(QChar(char16_t(std::get<int>(v))))));
    case dv::Kind::String: return CZqVariant(CZqString(std::get<OdString>(v)));
    case dv::Kind::Color: return CZqVariant(std::get<OdCmColor>(v));
    case dv::Kind::Int:
    case dv::Kind::LineWeight: return CZqVariant(int32_t(std::get<int>(v)));
    default: return CZqVariant(std::get<OdDbObjectId>(v));
  }
}
template CZqVariant getVar<false>(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&);
template CZqVariant getVar<true>(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&);

// Overrides are kept in the dimension's extended data, which files before
// R12 cannot hold: refused there.
int refuseOverrides(const D* dim) {
  constexpr int kExtendedDataRelease = 1009;  // R12
  return ZqRefuseBeforeRelease(
      dim, kExtendedDataRelease,
      QT_TRANSLATE_NOOP("errors", "Dimension overrides need a drawing saved as %1 or later; this drawing is %2."));
}

// Applies a variable's new value as an override; a value the variable
// does not take is refused with a sentence, the dimension unchanged.
int applyVar(D* dim, dv::Id id, const dv::Value& v) {
  OdString why;
  if (!dv::check(id, v, &why))
    return ZqRefuseWith(QCoreApplication::translate("errors", "%1 cannot take this value").arg(dv::info(id).upperName().qstring()));
  if (dim->dimVar(id) == v) return kZqSetApplied;
  if (const int refused = refuseOverrides(dim)) return refused;
  dim->setDimVar(id, v);
  return kZqSetApplied;
}

template <bool Angular>
int setVar(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
           const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  const Use use = useOf(description, Angular);
  if (!dim || use.id == dv::kCount) return kZqSetRefused;
  const dv::Info& info = dv::info(use.id);
  const dv::Value now = dim->dimVar(use.id);
  int32_t tag = 0;
  switch (use.part) {
    case dv::Part::Before:
    case dv::Part::After:
      if (value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
      return applyVar(dim, use.id, OdString(withPart(std::get<OdString>(now).qstring(), use.part, value.GetString().qstring())));
    case dv::Part::Magnitude: {
      double size = 0;
      if (const int refused = ZqTakeDouble(description, value, size)) return refused;
      return applyVar(dim, use.id, std::get<double>(now) < 0 ? -size : size);
    }
    case dv::Part::Whole: break;
    default:
      if (!ZqChosenTag(value, tag)) return kZqSetRefused;
      return applyVar(dim, use.id, withSuppression(std::get<int>(now), use.part, tag == 1));
  }
  switch (info.kind) {
    case dv::Kind::Real:
    case dv::Kind::Angle: {
      double d = 0;
      if (const int refused = ZqTakeDouble(description, value, d)) return refused;
      return applyVar(dim, use.id, d);
    }
    case dv::Kind::Bool:
      if (!ZqChosenTag(value, tag)) return kZqSetRefused;
      return applyVar(dim, use.id, tag == 1);
    case dv::Kind::Int:
      if (!ZqChosenTag(value, tag)) {
        if (value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
        tag = value.GetInt32();
      }
      return applyVar(dim, use.id, int(tag));
    case dv::Kind::LineWeight:
      if (value.GetType() != CZqVariant::kVtInt32) return kZqSetRefused;
      return applyVar(dim, use.id, int(value.GetInt32()));
    case dv::Kind::Char: {
      if (value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
      const QString s = value.GetString().qstring();
      if (s.size() != 1) return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Decimal separator must be one character"));
      return applyVar(dim, use.id, int(s.at(0).unicode()));
    }
    case dv::Kind::String:
      if (value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
      return applyVar(dim, use.id, OdString(value.GetString().qstring()));
    case dv::Kind::Color:
      if (value.GetType() != CZqVariant::kVtColor) return kZqSetRefused;
      return applyVar(dim, use.id, value.GetColor());
    case dv::Kind::TextStyle:
    case dv::Kind::Linetype: {
      if (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
      QString why;
      const OdDbObjectId id =
          ZqRecordFor(object, info.kind == dv::Kind::TextStyle ? kZqTextStyles : kZqLinetypes, value, &why);
      if (id.isNull()) return ZqRefuseWith(why);
      return applyVar(dim, use.id, id);
    }
    case dv::Kind::Block: break;
  }
  return kZqSetRefused;
}
template int setVar<false>(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&);
template int setVar<true>(const OdDbObject*, const CZqPropertyDescription&, const CZqVariant&, const CZqVariant&);

// An enumeration over an integer or boolean variable.
template <const auto& Choices, bool Angular = false>
CZqVariant getVarChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  const Use use = useOf(description, Angular);
  if (!dim || use.id == dv::kCount) return CZqVariant();
  const dv::Value v = dim->dimVar(use.id);
  const int n = std::holds_alternative<bool>(v) ? int(std::get<bool>(v)) : std::get<int>(v);
  return ZqEnumeration(Choices, currentIndex(Choices, n));
}

// Stores the chosen tag of a list of `choices` in the row's variable.
int setVarChoiceFrom(std::span<const ZqChoice> choices, const OdDbObject* object, const CZqPropertyDescription& description,
                     const CZqVariant& value, bool angular) {
  D* dim = ZqWritable<D>(object);
  const Use use = useOf(description, angular);
  int32_t tag = 0;
  if (!dim || use.id == dv::kCount || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (ZqChoiceIndex(choices, tag) < 0) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), choices));
  if (dv::info(use.id).kind == dv::Kind::Bool) return applyVar(dim, use.id, tag != 0);
  return applyVar(dim, use.id, int(tag));
}
template <const auto& Choices, bool Angular = false>
int setVarChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                 const CZqVariant&) {
  return setVarChoiceFrom(Choices, object, description, value, Angular);
}

// Precision rows: the list follows the unit format (or the angle format).
template <dv::Id Format, bool Angle = false>
CZqVariant getPrecisionOf(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  const Use use = useOf(description, Angle);
  if (!dim || use.id == dv::kCount) return CZqVariant();
  const int format = std::get<int>(dim->dimVar(Format));
  const auto list = Angle ? anglePrecisionList(format) : precisionList(format);
  return ZqEnumeration(list, currentIndex(list, std::get<int>(dim->dimVar(use.id))));
}

CZqVariant getPrecision(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getPrecisionOf<dv::k_dimlunit>(o, d, i);
}
CZqVariant getAltPrecision(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getPrecisionOf<dv::k_dimaltu>(o, d, i);
}
CZqVariant getAltTolerancePrecision(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getPrecisionOf<dv::k_dimaltu>(o, d, i);
}
CZqVariant getTolerancePrecision(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getPrecisionOf<dv::k_dimlunit>(o, d, i);
}
CZqVariant getAnglePrecision(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getPrecisionOf<dv::k_dimaunit, true>(o, d, i);
}
// Precisions take 0 to 8, whatever list shows them.
int setChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
              const CZqVariant& index) {
  return setVar<false>(object, description, value, index);
}
int setAngleChoice(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                   const CZqVariant& index) {
  return setVar<true>(object, description, value, index);
}

CZqVariant getUnitFormat(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getVarChoice<kUnitFormat>(o, d, i);
}
int setUnitFormat(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& v, const CZqVariant& i) {
  return setVarChoice<kUnitFormat>(o, d, v, i);
}
CZqVariant getAltFormat(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getVarChoice<kUnitFormat>(o, d, i);
}
CZqVariant getFraction(const OdDbObject* o, const CZqPropertyDescription& d, const CZqVariant& i) {
  return getVarChoice<kFraction>(o, d, i);
}

// --- Read-only rules -------------------------------------------------------------------------

bool isAltReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && !dim->dimalt();
}
bool isFixedLengthReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && !dim->dimfxlon();
}
// Stacked fractions are shown only in fractional and architectural units.
bool isFractionReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && dim->dimlunit() != 4 && dim->dimlunit() != 5;
}
// Alternate tolerances need both alternate units and tolerances.
bool isAltTolerancePrecisionReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && (!dim->dimalt() || !dim->dimtol());
}

CZqVariant getMeasurement(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? ZqDouble(dim->measurement()) : CZqVariant();
}

}  // namespace ZqDim

namespace {

using namespace ZqDim;
namespace dv = OdDbDimVar;
using D = OdDbDimension;

// --- Rows of the common block that are not a variable alone -------------------------------------------

CZqVariant getAssociative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return ZqEnumeration(kZqYesNo, dim && dim->isAssociative() ? 0 : 1);
}

CZqVariant getStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? CZqVariant(dim->dimensionStyle()) : CZqVariant();
}
int setStyle(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  if (!dim || (value.GetType() != CZqVariant::kVtId && value.GetType() != CZqVariant::kVtString)) return kZqSetRefused;
  QString why;
  const OdDbObjectId id = ZqRecordFor(object, kZqDimensionStyles, value, &why);
  if (id.isNull()) return ZqRefuseWith(why);
  if (id != dim->dimensionStyle()) dim->setDimensionStyle(id);
  return kZqSetApplied;
}

template <int Axis>
CZqVariant getTextPosition(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? ZqDouble(ZqUcsOf(object).wcsToUcs(dim->textPosition())[Axis]) : CZqVariant();
}
template <int Axis>
int setTextPosition(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                    const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  if (!dim) return kZqSetRefused;
  double v = 0;
  if (const int refused = ZqTakeDouble(description, value, v)) return refused;
  OdGePoint3d p = dim->textPosition();
  if (ZqReplaceUcsCoordinate(object, p, Axis, v)) {
    dim->setTextPosition(p);
    // The text stands where the user put it now.
    dim->setDimensionFlags(dim->dimensionFlags() | 128);
  }
  return kZqSetApplied;
}

constexpr auto getRotation = ZqGetDouble<D, &D::textRotation>;
constexpr auto setRotation = ZqSetDouble<D, &D::setTextRotation>;

CZqVariant getTextOverride(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? CZqVariant(CZqString(dim->dimensionText())) : CZqVariant();
}
// One line: a line break in a dimension's text is "\P", never a control
// character.
int setTextOverride(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  if (!dim || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  const QString s = value.GetString().qstring();
  for (const QChar c : s)
    if (c.category() == QChar::Other_Control)
      return ZqRefuse(QT_TRANSLATE_NOOP("errors", "A dimension text cannot hold control characters"));
  if (s != dim->dimensionText().qstring()) dim->setDimensionText(OdString(s));
  return kZqSetApplied;
}
// A text override replaces the measurement; it is the user's own text
// and always editable.
bool isTextOverrideReadOnly(const OdDbObject*, const CZqPropertyDescription&) { return false; }

// Tolerance display: DIMTOL (symmetrical or deviation by its limits),
// DIMLIM (limits) and a negative DIMGAP (basic, a box round the text).
int toleranceDisplayOf(const D* dim) {
  if (dim->dimgap() < 0) return 4;
  if (dim->dimlim()) return 3;
  if (!dim->dimtol()) return 0;
  return dim->dimtp() == dim->dimtm() ? 1 : 2;
}
CZqVariant getToleranceDisplay(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? ZqEnumeration(kToleranceDisplay, toleranceDisplayOf(dim)) : CZqVariant();
}
int setToleranceDisplay(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
                        const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  int32_t tag = 0;
  if (!dim || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag < 0 || tag > 4) return ZqRefuseWith(ZqChoicesSentence(description.GetName().qstring(), kToleranceDisplay));
  if (tag == toleranceDisplayOf(dim)) return kZqSetApplied;
  const double gap = std::fabs(dim->dimgap());
  dim->setDimgap(tag == 4 ? -gap : gap);
  dim->setDimlim(tag == 3);
  dim->setDimtol(tag == 1 || tag == 2);
  // Symmetrical shows one value: the lower limit follows the upper.
  if (tag == 1 && dim->dimtm() != dim->dimtp()) dim->setDimtm(dim->dimtp());
  return kZqSetApplied;
}
bool isLowerLimitReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  if (!dim) return false;
  const int t = toleranceDisplayOf(dim);
  return t == 0 || t == 1 || t == 4;
}
bool isUpperLimitReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  if (!dim) return false;
  const int t = toleranceDisplayOf(dim);
  return t == 0 || t == 4;
}
// Editable when the dimension shows tolerances (limits included).
bool isTolerancePrecisionReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && toleranceDisplayOf(dim) == 0;
}


bool isScaleReadOnly(const OdDbObject* object, const CZqPropertyDescription&) { return ZqIsAnnotative(object); }

// Inspection: kept as the dimension's "ACAD_DSTYLE_DIMINSPECT" extended
// data - the flags (on: bit 8; the frame shape in the low three bits),
// then the label and the rate.
const OdString kInspectApp("ACAD_DSTYLE_DIMINSPECT");
struct Inspection {
  int flags = 0;
  QString label, rate;
};
Inspection inspectionOf(const D* dim) {
  Inspection in;
  const OdResBufPtr data = dim->xData(kInspectApp);
  int strings = 0;
  for (const OdResBuf* p = data ? data->next() : nullptr; p; p = p->next()) {
    if (p->restype() == OdResBuf::kDxfXdInteger16) in.flags = int(p->getInt64());
    else if (p->restype() == OdResBuf::kDxfXdAsciiString) (strings++ == 0 ? in.label : in.rate) = p->getString().qstring();
  }
  return in;
}
// Files before R12 have no extended data to keep it in: refused there.
int storeInspection(D* dim, const Inspection& in) {
  constexpr int kExtendedDataRelease = 1009;  // R12
  if (const int refused = ZqRefuseBeforeRelease(
          dim, kExtendedDataRelease,
          QT_TRANSLATE_NOOP("errors", "Inspection data needs a drawing saved as %1 or later; this drawing is %2.")))
    return refused;
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, kInspectApp);
  OdResBuf* tail = head.get();
  tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, int64_t(in.flags)).get());
  tail = tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString(in.label)).get());
  tail->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString(in.rate)).get());
  dim->setXData(head.get());
  return kZqSetApplied;
}
constexpr int kInspectionOn = 8;
const ZqChoice kInspectionShape[] = {
    {QT_TRANSLATE_NOOP("CZqDimensionPE", "None"), 0},
    {QT_TRANSLATE_NOOP("CZqDimensionPE", "Round"), 1},
    {QT_TRANSLATE_NOOP("CZqDimensionPE", "Angular"), 2},
};
// The words of these lists are translated in the provider's own context.
CZqVariant ownContextEnumeration(std::span<const ZqChoice> choices, int current) {
  CZqVariantCollection collection;
  for (const ZqChoice& c : choices) {
    CZqVariantCollectionElement element;
    element.SetValue(CZqVariant(QCoreApplication::translate("CZqDimensionPE", c.word)));
    element.SetTag(CZqVariant(c.tag));
    collection.Add(element);
  }
  collection.SetCurrent(current);
  return CZqVariant(collection);
}
const ZqChoice kInspectionOnOff[] = {
    {QT_TRANSLATE_NOOP("CZqDimensionPE", "Yes"), 1},
    {QT_TRANSLATE_NOOP("CZqDimensionPE", "No"), 0},
};
CZqVariant getInspection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? ownContextEnumeration(kInspectionOnOff, inspectionOf(dim).flags & kInspectionOn ? 0 : 1) : CZqVariant();
}
int setInspection(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  int32_t tag = 0;
  if (!dim || !ZqChosenTag(value, tag)) return kZqSetRefused;
  Inspection in = inspectionOf(dim);
  const int flags = tag == 1 ? in.flags | kInspectionOn : in.flags & ~kInspectionOn;
  if (flags == in.flags) return kZqSetApplied;
  in.flags = flags;
  return storeInspection(dim, in);
}
CZqVariant getInspectionShape(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? ownContextEnumeration(kInspectionShape, ZqChoiceIndex(kInspectionShape, inspectionOf(dim).flags & 7))
             : CZqVariant();
}
// The low three bits take the shape; the other bits are kept.
int setInspectionShape(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  int32_t tag = 0;
  if (!dim || !ZqChosenTag(value, tag) || tag < 0 || tag > 2) return kZqSetRefused;
  Inspection in = inspectionOf(dim);
  const int flags = (in.flags & ~7) | tag;
  if (flags == in.flags) return kZqSetApplied;
  in.flags = flags;
  return storeInspection(dim, in);
}
template <QString Inspection::*Field>
CZqVariant getInspectionText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? CZqVariant(CZqString(inspectionOf(dim).*Field)) : CZqVariant();
}
template <QString Inspection::*Field>
int setInspectionText(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  if (!dim || value.GetType() != CZqVariant::kVtString) return kZqSetRefused;
  Inspection in = inspectionOf(dim);
  const QString s = value.GetString().qstring();
  if (s == in.*Field) return kZqSetApplied;
  in.*Field = s;
  return storeInspection(dim, in);
}

// Property matching: the dimension's style and every override.
int matchDimension(const OdDbEntity* source, OdDbObject* target) {
  const D* from = odrxCast<D>(source);
  D* to = odrxCast<D>(target);
  if (!from || !to || !to->isWriteEnabled()) return kZqSetRefused;
  const OdDbObjectId style = to->dimensionStyle();
  if (from->database() == to->database()) to->setDimensionStyle(from->dimensionStyle());
  OdDbDimStyleTableRecordPtr scratch = OdDbDimStyleTableRecord::createObject();
  from->getDimstyleData(scratch.get());
  std::vector<dv::Id> differing;
  for (int k = 0; k < dv::kCount; ++k) {
    const dv::Id id = dv::Id(k);
    // Records of another drawing mean nothing here.
    if (dv::info(id).isReference() && from->database() != to->database()) continue;
    if (dv::info(id).code && !(to->dimVar(id) == scratch->dimVar(id))) differing.push_back(id);
  }
  if (!differing.empty())
    if (const int refused = refuseOverrides(to)) {
      if (!(to->dimensionStyle() == style)) to->setDimensionStyle(style);
      return refused;
    }
  for (const dv::Id id : differing) to->setDimVar(id, scratch->dimVar(id));
  return kZqSetApplied;
}
int setMatch(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  if (!ZqWritable<OdDbEntity>(object)) return kZqSetRefused;
  return ZqMatchFrom(object, value, &matchDimension);
}

// Arrowheads: the standard ones, the drawing's own blocks, "Custom arrow".
struct ArrowChoice {
  QString word;  // translated, or a block's name
  int tag;
  OdDbObjectId block;
};
std::vector<ArrowChoice> arrowChoices(const OdDbDatabase* db) {
  std::vector<ArrowChoice> out;
  std::vector<OdDbObjectId> blocks;
  if (db) {
    OdDbObjectPtr t = db->getBlockTableId().openObject();
    if (auto* table = odrxCast<OdDbSymbolTable>(t.get())) {
      for (const OdDbObjectId& id : table->recordIds()) blocks.push_back(id);
    }
  }
  auto nameOf = [](const OdDbObjectId& id) {
    OdDbObjectPtr o = id.openObject();
    auto* rec = odrxCast<OdDbBlockTableRecord>(o.get());
    return rec && !rec->isLayout() ? rec->getName().qstring() : QString();
  };
  std::vector<QString> names;
  for (const OdDbObjectId& id : blocks) names.push_back(nameOf(id));
  std::vector<bool> standard(blocks.size(), false);
  for (const Arrowhead& a : kArrowheads) {
    OdDbObjectId id;
    for (size_t i = 0; i < blocks.size(); ++i)
      if (*a.block && names[i].compare(QLatin1String(a.block), Qt::CaseInsensitive) == 0) {
        id = blocks[i];
        standard[i] = true;
      }
    out.push_back({QCoreApplication::translate("property_values", a.choice.word), a.choice.tag, id});
  }
  int tag = kFirstUserBlockTag;
  for (size_t i = 0; i < blocks.size(); ++i) {
    if (standard[i] || names[i].isEmpty() || names[i].startsWith('*')) {
      continue;
    }
    out.push_back({names[i], tag++, blocks[i]});
  }
  out.push_back({QCoreApplication::translate("property_values", kCustomArrow), kCustomArrowTag, OdDbObjectId()});
  return out;
}

CZqVariant getArrow(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  const Use use = useOf(description, false);
  if (!dim || use.id == dv::kCount) return CZqVariant();
  const OdDbObjectId current = std::get<OdDbObjectId>(dim->dimVar(use.id));
  const std::vector<ArrowChoice> choices = arrowChoices(dim->database());
  CZqVariantCollection collection;
  int at = -1;
  for (size_t i = 0; i < choices.size(); ++i) {
    CZqVariantCollectionElement element;
    element.SetValue(CZqVariant(CZqString(choices[i].word)));
    element.SetTag(CZqVariant(int32_t(choices[i].tag)));
    collection.Add(element);
    const bool isCurrent = current.isNull() ? choices[i].tag == 0 : choices[i].block == current;
    if (isCurrent && at < 0) at = int(i);
  }
  collection.SetCurrent(at);
  return CZqVariant(collection);
}

int setArrow(const OdDbObject* object, const CZqPropertyDescription& description, const CZqVariant& value,
             const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  const Use use = useOf(description, false);
  int32_t tag = 0;
  if (!dim || use.id == dv::kCount || !ZqChosenTag(value, tag)) return kZqSetRefused;
  if (tag == kCustomArrowTag)
    return ZqRefuse(QT_TRANSLATE_NOOP("errors", "Choose one of the drawing's blocks as the custom arrow"));
  for (const ArrowChoice& c : arrowChoices(dim->database())) {
    if (c.tag != tag) continue;
    if (tag != 0 && c.block.isNull())
      return ZqRefuseWith(QCoreApplication::translate("errors", "The drawing has no block for the arrowhead \"%1\"").arg(c.word));
    return applyVar(dim, use.id, c.block);
  }
  return ZqRefuse(QT_TRANSLATE_NOOP("errors", "There is no such arrowhead"));
}

// Centre mark: a mark (DIMCEN > 0), lines (< 0) or none (0).
CZqVariant getCenterMark(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  if (!dim) return CZqVariant();
  const double c = dim->dimcen();
  return ZqEnumeration(kCenterMark, c > 0 ? 0 : c < 0 ? 1 : 2);
}
int setCenterMark(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  D* dim = ZqWritable<D>(object);
  int32_t tag = 0;
  if (!dim || !ZqChosenTag(value, tag) || tag < 0 || tag > 2) return kZqSetRefused;
  const double size = std::fabs(dim->dimcen());
  // A mark or lines of no size take the style's default size.
  const double use = size > 0 ? size : std::fabs(std::get<double>(dv::info(dv::k_dimcen).defaultValue()));
  const double c = tag == 0 ? use : tag == 1 ? -use : 0;
  if (c != dim->dimcen()) dim->setDimcen(c);
  return kZqSetApplied;
}
// Without a centre mark there is no size to give.
bool isCenterMarkSizeReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const D* dim = ZqReadable<D>(object);
  return dim && dim->dimcen() == 0;
}
// The extension arc of a diametric dimension's text outside the curve: the
// one-arrow "Ext line" row is editable for diametric dimensions only.
bool isExtLineReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  return !ZqReadable<OdDbDiametricDimension>(object);
}

// --- Rows ---------------------------------------------------------------------------------------------

#define ZQ_LA QT_TRANSLATE_NOOP("property_groups", "Lines && Arrows")
#define ZQ_TEXT QT_TRANSLATE_NOOP("property_groups", "Text")
#define ZQ_FIT QT_TRANSLATE_NOOP("property_groups", "Fit")
#define ZQ_PRIMARY QT_TRANSLATE_NOOP("property_groups", "Primary UnitSystem")
#define ZQ_ALT QT_TRANSLATE_NOOP("property_groups", "Alternate UnitSystem")
#define ZQ_TOL QT_TRANSLATE_NOOP("property_groups", "Tolerance")
#define PT(s) QT_TRANSLATE_NOOP("property_types", s)

constexpr auto getV = getVar<false>;
constexpr auto setV = setVar<false>;
constexpr auto getYesNo = getVar<false>;
// Refusals with the messages the rows have always shown.
constexpr ZqLimit kPositiveOnly = ZqMessage(kZqPositive, "Value must be positive");
constexpr ZqLimit kNotNegativePositiveWord = ZqMessage(kZqNonNegative, "Value must be positive");
constexpr ZqLimit kNotNegative = ZqMessage(kZqNonNegative, "Value must be non-negative");
constexpr ZqLimit kNonZero = ZqMessage(kZqNonZero, "Value must be non-zero");

const ZqRow kCommonRows[] = {
//  category    name                                   type        identifier                read-only                     get                             set                             icon                                   visibility limit                     icon folder
  {ZQ_GENERAL, PT("Associative"),                     kZqUntyped, nullptr,                  kZqReadOnly,                  getAssociative,                 nullptr,                        "General_Associative"},
  {ZQ_MISC,    PT("Dim style"),                       kZqUntyped, nullptr,                  kZqEditable,                  getStyle,                       setStyle,                       "Misc_DimStyle"},
  {ZQ_LA,      PT("Arrow size"),                      kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ArrowSize",              kVisKeep, kNotNegativePositiveWord},
  {ZQ_TEXT,    PT("Fill color"),                      kZqColor,   ZqGuid::fillColorGUID,    kZqEditable,                  getV,                           setV,                           "Text_FillColor"},
  {ZQ_TEXT,    PT("Text color"),                      kZqColor,   nullptr,                  kZqEditable,                  getV,                           setV,                           "Text_TextColor"},
  {ZQ_TEXT,    PT("Text height"),                     kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Text_Height",                         kVisKeep, kPositiveOnly},
  {ZQ_TEXT,    PT("Text offset"),                     kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Text_Offset"},
  {ZQ_TEXT,    PT("TextStyle"),                       kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Text_TextStyle"},
  {ZQ_TEXT,    PT("Position x"),                      kZqDouble,  ZqGuid::kCoordinateXGUID, kZqEditable,                  getTextPosition<0>,             setTextPosition<0>,             "Text_CoordinateX"},
  {ZQ_TEXT,    PT("Position y"),                      kZqDouble,  ZqGuid::kCoordinateYGUID, kZqEditable,                  getTextPosition<1>,             setTextPosition<1>,             "Text_CoordinateY"},
  {ZQ_TEXT,    PT("Rotation"),                        kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable,                  getRotation,                    setRotation,                    "Text_Rotation"},
  {ZQ_TEXT,    PT("Text override"),                   kZqUntyped, nullptr,                  isTextOverrideReadOnly,       getTextOverride,                setTextOverride,                "Text_Override"},
  {ZQ_FIT,     PT("Dim scale overall"),               kZqUntyped, nullptr,                  isScaleReadOnly,              getV,                           setV,                           "Fit_DimScaleOverall",                 kVisKeep, kNotNegative},
  {ZQ_FIT,     PT("Text movement"),                   kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextMovement>,    setVarChoice<kTextMovement>,    "Fit_TextMovement"},
  {ZQ_PRIMARY, PT("Decimal separator"),               kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Primary_units_DecimalSeparator"},
  {ZQ_PRIMARY, PT("Dim Roundoff"),                    kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Primary_units_Roundoff",              kVisKeep, kNotNegativePositiveWord},
  {ZQ_PRIMARY, PT("Dim prefix"),                      kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Primary_units_DimPrefix"},
  {ZQ_PRIMARY, PT("Dim suffix"),                      kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Primary_units_DimSuffix"},
  {ZQ_PRIMARY, PT("Suppress leading zeros"),          kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressLeadingZeroes"},
  {ZQ_PRIMARY, PT("Suppress trailing zeros"),         kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressTrailingZeroes"},
  {ZQ_TOL,     PT("Tolerance display"),               kZqUntyped, nullptr,                  kZqEditable,                  getToleranceDisplay,            setToleranceDisplay,            "Tolerance_ToleranceDisplay"},
  {ZQ_TOL,     PT("Tolerance limit lower"),           kZqUntyped, nullptr,                  isLowerLimitReadOnly,         getV,                           setV,                           "Tolerance_ToleranceLimitLower"},
  {ZQ_TOL,     PT("Tolerance limit upper"),           kZqUntyped, nullptr,                  isUpperLimitReadOnly,         getV,                           setV,                           "Tolerance_ToleranceLimitUpper"},
  {ZQ_TOL,     PT("Tolerance pos vert"),              kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTolerancePosVert>, setVarChoice<kTolerancePosVert>, "Tolerance_TolerancePosVert"},
  {ZQ_TOL,     PT("Tolerance precision"),             kZqUntyped, nullptr,                  isTolerancePrecisionReadOnly, getTolerancePrecision,          setChoice,                      "Tolerance_TolerancePrecision"},
  {ZQ_TOL,     PT("Tolerance suppress leading zeros"), kZqUntyped, nullptr,                 kZqEditable,                  getYesNo,                       setV,                           "Tolerance_TolSupLeadingZeroes"},
  {ZQ_TOL,     PT("Tolerance suppress trailing zeros"), kZqUntyped, nullptr,                kZqEditable,                  getYesNo,                       setV,                           "Tolerance_TolSupTrailingZeroes"},
  {ZQ_TOL,     PT("Tolerance text height"),           kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Tolerance_ToleranceTextHeight",       kVisKeep, kNotNegativePositiveWord},
  {ZQ_TOL,     PT("Inspection frame"),                kZqUntyped, nullptr,                  kZqEditable,                  getInspection,                  setInspection,                  "InspectionDim_On",                    kVisKeep, kZqAny, "Misc"},
  {ZQ_TOL,     PT("Inspection frame shape"),          kZqUntyped, nullptr,                  kZqEditable,                  getInspectionShape,             setInspectionShape,             "InspectionDimFrame",                  kVisKeep, kZqAny, "Misc"},
  {ZQ_TOL,     PT("Inspection label"),                kZqUntyped, nullptr,                  kZqEditable,                  getInspectionText<&Inspection::label>, setInspectionText<&Inspection::label>, "InspectionLabel", kVisKeep, kZqAny, "Misc/"},
  {ZQ_TOL,     PT("Inspection rate"),                 kZqUntyped, nullptr,                  kZqEditable,                  getInspectionText<&Inspection::rate>,  setInspectionText<&Inspection::rate>,  "InspectionRate",  kVisKeep, kZqAny, "Misc/"},
  {ZQ_MATCHPROP, "MATCHPROP_Dimension",               kZqUntyped, nullptr,                  kZqEditable,                  ZqGetOwnId,                     setMatch,                       "",                                    kVisMatchProp},
};

// The units rows shared by the one-arrow list and the linear kinds.
#define ZQ_UNITS_ROWS(ReadOnlyText)                                                                                                                                                             \
  {ZQ_PRIMARY, PT("Dim scale linear"),                kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Primary_units_DimScaleLinear", kVisKeep, kNonZero}, \
  {ZQ_PRIMARY, PT("Dim UnitSystem"),                  kZqUntyped, nullptr,                  kZqEditable,                  getUnitFormat,                  setUnitFormat,                  "Primary_units_AltFormat"},  \
  {ZQ_PRIMARY, PT("Precision"),                       kZqUntyped, nullptr,                  kZqEditable,                  getPrecision,                   setChoice,                      "Primary_units_Precision"},  \

#define ZQ_TOL_FEET_ROWS                                                                                                                                                                          \
  {ZQ_TOL,     PT("Tolerance suppress zero feet"),    kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Tolerance_TolSupZeroFeet"}, \
  {ZQ_TOL,     PT("Tolerance suppress zero inches"),  kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Tolerance_TolSupZeroInches"},

// Alternate tolerances and alternate units; AltLeading reads the row
// "Alt suppress leading zeros".
#define ZQ_ALT_ROWS(AltLeading)                                                                                                                                                                  \
  {ZQ_TOL,     PT("Alt tolerance precision"),         kZqUntyped, nullptr,                  isAltTolerancePrecisionReadOnly, getAltTolerancePrecision,    setChoice,                      "Tolerance_AltTolerancePrecision"}, \
  {ZQ_TOL,     PT("Alt tolerance suppress leading zeros"), kZqUntyped, nullptr,             kZqEditable,                  getYesNo,                       setV,                           "Tolerance_AltTolSupLeadingZeroes"}, \
  {ZQ_TOL,     PT("Alt tolerance suppress trailing zeros"), kZqUntyped, nullptr,            kZqEditable,                  getYesNo,                       setV,                           "Tolerance_AltTolSupTrailingZeroes"}, \
  {ZQ_TOL,     PT("Alt tolerance suppress zero feet"), kZqUntyped, nullptr,                 kZqEditable,                  getYesNo,                       setV,                           "Tolerance_AltTolSupZeroFeet"}, \
  {ZQ_TOL,     PT("Alt tolerance suppress zero inches"), kZqUntyped, nullptr,               kZqEditable,                  getYesNo,                       setV,                           "Tolerance_AltTolSupZeroInches"}, \
  {ZQ_ALT,     PT("Alt enabled"),                     kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Alternate_units_AltEnabled"}, \
  {ZQ_ALT,     PT("Alt format"),                      kZqUntyped, nullptr,                  isAltReadOnly,                getAltFormat,                   setVarChoice<kUnitFormat>,      "Alternate_units_AltFormat"}, \
  {ZQ_ALT,     PT("Alt precision"),                   kZqUntyped, nullptr,                  isAltReadOnly,                getAltPrecision,                setChoice,                      "Alternate_units_AltPrecision"}, \
  {ZQ_ALT,     PT("Alt round"),                       kZqUntyped, nullptr,                  isAltReadOnly,                getV,                           setV,                           "Alternate_units_AltRound",     kVisKeep, kNotNegativePositiveWord}, \
  {ZQ_ALT,     PT("Alt scale"),                       kZqUntyped, nullptr,                  isAltReadOnly,                getV,                           setV,                           "Alternate_units_AltScale",     kVisKeep, kPositiveOnly}, \
  {ZQ_ALT,     PT("Alt prefix"),                      kZqUntyped, nullptr,                  isAltReadOnly,                getV,                           setV,                           "Alternate_units_AltPrefix"}, \
  {ZQ_ALT,     PT("Alt suffix"),                      kZqUntyped, nullptr,                  isAltReadOnly,                getV,                           setV,                           "Alternate_units_AltSuffix"}, \
  {ZQ_ALT,     PT("Alt suppress leading zeros"),      kZqUntyped, nullptr,                  isAltReadOnly,                AltLeading,                     setV,                           "Alternate_units_AltSuppressLeadingZeroes"}, \
  {ZQ_ALT,     PT("Alt suppress trailing zeros"),     kZqUntyped, nullptr,                  isAltReadOnly,                getYesNo,                       setV,                           "Alternate_units_AltSuppressTrailingZeroes"}, \
  {ZQ_ALT,     PT("Alt suppress zeros feet"),         kZqUntyped, nullptr,                  isAltReadOnly,                getYesNo,                       setV,                           "Alternate_units_AltSuppressZeroFeet"}, \
  {ZQ_ALT,     PT("Alt suppress zeros inches"),       kZqUntyped, nullptr,                  isAltReadOnly,                getYesNo,                       setV,                           "Alternate_units_AltSuppressZeroInches"},

const ZqRow kOneArrowRows[] = {
  {ZQ_LA,      PT("Arrow"),                           kZqUntyped, nullptr,                  kZqEditable,                  getArrow,                       setArrow,                       "Lines_Arrows_DimLineWeight"},
  {ZQ_LA,      PT("CenterMark"),                      kZqUntyped, nullptr,                  kZqEditable,                  getCenterMark,                  setCenterMark,                  "Lines_Arrows_CenterMark"},
  {ZQ_FIT,     PT("DimLine forced"),                  kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Fit_DimLineForced"},
  {ZQ_LA,      PT("CenterMark size"),                 kZqUntyped, nullptr,                  isCenterMarkSizeReadOnly,     getV,                           setV,                           "Lines_Arrows_CenterMarkSize", kVisKeep, kPositiveOnly},
  {ZQ_LA,      PT("DimLine LWeight"),                 kZqInt32,   ZqGuid::kLineweightGUID,  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineWeight"},
  {ZQ_LA,      PT("DimLine LColor"),                  kZqColor,   nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineColor"},
  {ZQ_LA,      PT("Ext line"),                        kZqUntyped, nullptr,                  isExtLineReadOnly,            getYesNo,                       setV,                           "Lines_Arrows_ExtLine1"},
  {ZQ_LA,      PT("DimLine LStyle"),                  kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineStyle"},
  {ZQ_TEXT,    PT("Fractional type"),                 kZqUntyped, nullptr,                  isFractionReadOnly,           getFraction,                    setVarChoice<kFraction>,        "Text_FractionalType"},
  {ZQ_TEXT,    PT("Measurement"),                     kZqUntyped, nullptr,                  kZqReadOnly,                  getMeasurement,                 nullptr,                        "Text_Measurement"},
  {ZQ_TEXT,    PT("Text outside align"),              kZqUntyped, nullptr,                  kZqReadOnly,                  getYesNo,                       nullptr,                        "Text_OutsideAlign"},
  {ZQ_TEXT,    PT("Text pos vert"),                   kZqUntyped, nullptr,                  kZqReadOnly,                  getVarChoice<kTextPosVert>,     nullptr,                        "Text_PosVert"},
  {ZQ_TEXT,    PT("Text inside align"),               kZqUntyped, nullptr,                  kZqReadOnly,                  getYesNo,                       nullptr,                        "Text_InsideAlign"},
  {ZQ_FIT,     PT("Fit"),                             kZqUntyped, nullptr,                  kZqReadOnly,                  getVarChoice<kFit>,             nullptr,                        "Fit_Fit"},
  ZQ_UNITS_ROWS()
  {ZQ_PRIMARY, PT("Suppress zero feet"),              kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressZeroFeet"},
  {ZQ_PRIMARY, PT("Suppress zero inches"),            kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressZeroInches"},
  ZQ_TOL_FEET_ROWS
  ZQ_ALT_ROWS(getYesNo)
  {ZQ_TEXT,    PT("Text view direction"),             kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextDirection>,   setVarChoice<kTextDirection>,   "Text_PosHor"},
};

const ZqRow kTwoArrowRows[] = {
  {ZQ_LA,      PT("Arrow 1"),                         kZqUntyped, nullptr,                  kZqEditable,                  getArrow,                       setArrow,                       "Lines_Arrows_Arrow1"},
  {ZQ_LA,      PT("Arrow 2"),                         kZqUntyped, nullptr,                  kZqEditable,                  getArrow,                       setArrow,                       "Lines_Arrows_Arrow2"},
  {ZQ_LA,      PT("DimLine LWeight"),                 kZqInt32,   ZqGuid::kLineweightGUID,  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineWeight"},
  {ZQ_LA,      PT("ExtLine LWeight"),                 kZqInt32,   ZqGuid::kLineweightGUID,  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineWeight"},
  {ZQ_LA,      PT("DimLine 1"),                       kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine1"},
  {ZQ_LA,      PT("DimLine 2"),                       kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine2"},
  {ZQ_LA,      PT("DimLine LColor"),                  kZqColor,   nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineColor"},
  {ZQ_LA,      PT("DimLine LStyle"),                  kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineStyle"},
  {ZQ_LA,      PT("ExtLine 1 LStyle"),                kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineStyle1"},
  {ZQ_LA,      PT("ExtLine 2 LStyle"),                kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineStyle2"},
  {ZQ_LA,      PT("DimLine ext"),                     kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_DimLineExt",      kVisKeep, kNotNegative},
  {ZQ_LA,      PT("ExtLine 1"),                       kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_ExtLine1"},
  {ZQ_LA,      PT("ExtLine 2"),                       kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_ExtLine2"},
  {ZQ_LA,      PT("ExtLine fixed"),                   kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_ExtLineFixed"},
  {ZQ_LA,      PT("ExtLine fixed length"),            kZqUntyped, nullptr,                  isFixedLengthReadOnly,        getV,                           setV,                           "Lines_Arrows_ExtLineFixedLength", kVisKeep, kNotNegative},
  {ZQ_LA,      PT("ExtLine LColor"),                  kZqColor,   nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineColor"},
  {ZQ_LA,      PT("ExtLine ext"),                     kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineExt",      kVisKeep, kNotNegative},
  {ZQ_LA,      PT("ExtLine offset"),                  kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineOffset",   kVisKeep, kNotNegative},
  {ZQ_TEXT,    PT("Text outside align"),              kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Text_OutsideAlign"},
  {ZQ_TEXT,    PT("Text pos hor"),                    kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextPosHor>,      setVarChoice<kTextPosHor>,      "Text_PosHor"},
  {ZQ_TEXT,    PT("Text pos vert"),                   kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextPosVert>,     setVarChoice<kTextPosVert>,     "Text_PosVert"},
  {ZQ_TEXT,    PT("Text inside align"),               kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Text_InsideAlign"},
  {ZQ_FIT,     PT("DimLine forced"),                  kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Fit_DimLineForced"},
  {ZQ_FIT,     PT("DimLine inside"),                  kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Fit_DimLineInside"},
  {ZQ_FIT,     PT("Fit"),                             kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kFit>,             setVarChoice<kFit>,             "Fit_Fit"},
  {ZQ_FIT,     PT("Text inside"),                     kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Fit_TextInside"},
  {ZQ_TEXT,    PT("Text view direction"),             kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextDirection>,   setVarChoice<kTextDirection>,   "Text_PosHor"},
};

// The dynamic part of every dimension: the two record rows get their
// editors, then the annotative rows.
void dynamicRows(const OdDbObject* object, CZqPropertiesContainer* container) {
  if (CZqPropertyDescription* style = container->GetByName(CZqString("Dim style"), CZqString("Misc")))
    style->SetType(CZqCustomPropertyType(kZqUntyped, CZqString(ZqGuid::kDimStyleGUID)));
  if (CZqPropertyDescription* text = container->GetByName(CZqString("TextStyle"), CZqString("Text")))
    text->SetType(CZqCustomPropertyType(kZqUntyped, CZqString(ZqGuid::kTextStyleGUID)));
  ZqAddAnnotativeRows(object, container, ZQ_MISC, "CZqDimensionPE");
}

}  // namespace

ZQ_DEFINE_PROVIDER(CZqDimensionPE, QT_TRANSLATE_NOOP("entity_types", "Dimension"), kCommonRows, {}, &dynamicRows)
ZQ_DEFINE_PROVIDER(CZqDimension1ArrowPE, nullptr, kOneArrowRows)
ZQ_DEFINE_PROVIDER(CZqDimension2ArrowPE, nullptr, kTwoArrowRows)

// --- Information -------------------------------------------------------------------------------------------

void CZqDimensionInfo::PrintDimStyleOverrides(const OdDbObject* object, CZqPrintInfoContext* context) {
  const D* dim = ZqReadable<D>(object);
  if (!dim || !context) return;
  ZqPrintDimStyleOverrides(object, dim->dimensionStyle(), context);
}

void ZqPrintDimStyleOverrides(const OdDbObject* object, const OdDbObjectId& styleId, CZqPrintInfoContext* context) {
  OdRxClass* recordClass = OdDbDimStyleTableRecord::desc();
  if (!recordClass) {
    context->PrintString(CZqString("OdDbOdDbDimStyleTableRecordis not loaded"));
    return;
  }
  OdDbObjectPtr styleObject = styleId.isNull() ? OdDbObjectPtr() : styleId.openObject();
  const auto* style = odrxCast<OdDbDimStyleTableRecord>(styleObject.get());
  bool header = false;
  for (const OdDbDimStyleOverrides::Line& line : OdDbDimStyleOverrides::effective(object, style)) {
    const dv::Id id = line.id;
    const dv::Value& v = line.value;
    const dv::Value base = style ? style->dimVar(id) : dv::info(id).defaultValue();
    if (v == base) continue;
    if (!header) {
      context->PrintString(QCoreApplication::translate("info_items", "Dimension style overrides"), CZqString(":"));
      header = true;
    }
    context->PrintString(CZqString(dv::info(id).upperName()), CZqString(dv::toString(id, v)));
  }
}

void CZqDimensionInfo::printHead(const OdDbObject* object, CZqPrintInfoContext* context, const char* kind,
                                 bool associationLine) {
  const D* dim = ZqReadable<D>(object);
  context->PrintBool(QCoreApplication::translate("info_items", "related"), dim->isAssociative());
  if (associationLine)
    context->PrintBool(QCoreApplication::translate("info_items", "associated with geometry"), dim->isAssociative());
  context->PrintString(QCoreApplication::translate("info_items", "type"),
                       kind ? CZqString(QCoreApplication::translate("info_values", kind)) : CZqString());
}

namespace {

// The object snaps of an association, by their numbers.
const char* const kOsnapWords[] = {
    QT_TRANSLATE_NOOP("info_values", "no snap"),      QT_TRANSLATE_NOOP("info_values", "end point"),
    QT_TRANSLATE_NOOP("info_values", "midpoint"),     QT_TRANSLATE_NOOP("info_values", "center"),
    QT_TRANSLATE_NOOP("info_values", "node"),         QT_TRANSLATE_NOOP("info_values", "quadrant"),
    QT_TRANSLATE_NOOP("info_values", "intersection"), QT_TRANSLATE_NOOP("info_values", "insertion point"),
    QT_TRANSLATE_NOOP("info_values", "perpendicular"), QT_TRANSLATE_NOOP("info_values", "tangent"),
    QT_TRANSLATE_NOOP("info_values", "nearest point"), QT_TRANSLATE_NOOP("info_values", "apparent intersection"),
    QT_TRANSLATE_NOOP("info_values", "parallel"),     QT_TRANSLATE_NOOP("info_values", "start point"),
};
const char* const kAttachedPoints[] = {
    QT_TRANSLATE_NOOP("info_items", "1st defining point attached to"),
    QT_TRANSLATE_NOOP("info_items", "2nd defining point attached to"),
    QT_TRANSLATE_NOOP("info_items", "3rd defining point attached to"),
    QT_TRANSLATE_NOOP("info_items", "4th defining point attached to"),
};

// Whether the dimension follows geometry, and per attached defining point
// the entity and the snap it follows ("end point of LINE 1E9").
void printAssociation(const OdDbDimension* dim, CZqPrintInfoContext* context) {
  const OdDbDimAssoc& a = dim->association();
  context->PrintString(QCoreApplication::translate("info_items", "association"),
                       CZqString(QCoreApplication::translate("info_values", a.handle ? "associative" : "not associative")));
  for (const OdDbDimAssocPoint& p : a.points) {
    if (p.point < 0 || p.point > 3) continue;
    const QString snap = p.osnap >= 0 && p.osnap < int(std::size(kOsnapWords))
                             ? QCoreApplication::translate("info_values", kOsnapWords[p.osnap])
                             : QString::number(p.osnap);
    OdDbObjectPtr target = p.object.isNull() ? OdDbObjectPtr() : p.object.openObject();
    const QString handle = QString::number(p.handle, 16).toUpper();
    const QString text =
        target ? QCoreApplication::translate("info_values", "%1 of %2 %3").arg(snap, target->isA()->dxfName().qstring(), handle)
               : QCoreApplication::translate("info_values", "%1 of %2, which is not in the drawing").arg(snap, handle);
    context->PrintString(QCoreApplication::translate("info_items", kAttachedPoints[p.point]), CZqString(text));
  }
}

}  // namespace

void CZqDimensionInfo::printTail(const OdDbObject* object, CZqPrintInfoContext* context) {
  const D* dim = ZqReadable<D>(object);
  printAssociation(dim, context);
  double measured = 0;
  if (!dim->measure(measured))
    context->PrintString(QCoreApplication::translate("info_items", "measurement"),
                         CZqString(QCoreApplication::translate("info_values", "cannot be measured: its defining points are degenerate")));
  context->PrintPoint(QCoreApplication::translate("info_items", "default text position"), dim->textPosition());
  context->PrintString(QCoreApplication::translate("info_items", "default text"), CZqString(dim->dimensionText()));
  OdDbObjectPtr styleObject = dim->dimensionStyle().isNull() ? OdDbObjectPtr() : dim->dimensionStyle().openObject();
  const auto* style = odrxCast<OdDbDimStyleTableRecord>(styleObject.get());
  context->PrintString(QCoreApplication::translate("info_items", "DimensionStyle"),
                       style ? CZqString(style->getName()) : CZqString());
}

// --- The nine kinds ---------------------------------------------------------------------------------------

namespace {

// A getter that reads the variable of another row: the rotated dimension's
// "Alt suppress leading zeros" shows the trailing-zeros setting, as it
// always has.
constexpr char kAltTrailingRow[] = "Alt suppress trailing zeros";
template <const char* Row>
CZqVariant getVarOfRow(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  const std::vector<dv::RowUse> uses = dv::rowUses(Row);
  if (!dim || uses.empty()) return CZqVariant();
  return ZqEnumeration(kZqYesNo, suppresses(std::get<int>(dim->dimVar(uses.front().id)), uses.front().part) ? 0 : 1);
}

// Angular rows read the angular variables; for an object that is not of
// the kind's class the read-only test answers editable.
template <class Kind>
bool isAngularZerosReadOnly(const OdDbObject* object, const CZqPropertyDescription&) {
  const Kind* dim = ZqReadable<Kind>(object);
  // Decimal separators of degrees only: zeros cannot be suppressed in
  // degrees, minutes and seconds.
  return dim && dim->dimaunit() == 1;
}
CZqVariant getAngleMeasurement(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  const D* dim = ZqReadable<D>(object);
  return dim ? CZqVariant(dim->measurement(), true) : CZqVariant();
}
constexpr auto getAngleV = getVar<true>;
constexpr auto setAngleV = setVar<true>;

#define ZQ_LINEAR_HEAD                                                                                                                                                                                 \
  {ZQ_TEXT,    PT("Fractional type"),                 kZqUntyped, nullptr,                  isFractionReadOnly,           getFraction,                    setVarChoice<kFraction>,        "Text_FractionalType"}, \
  {ZQ_TEXT,    PT("Measurement"),                     kZqUntyped, nullptr,                  kZqReadOnly,                  getMeasurement,                 nullptr,                        "Text_Measurement"},
#define ZQ_LINEAR_TAIL(AltLeading)                                                                                                                                                                     \
  ZQ_UNITS_ROWS()                                                                                                                                                                                      \
  {ZQ_PRIMARY, PT("Suppress zero feet"),              kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressZeroFeet"}, \
  {ZQ_PRIMARY, PT("Suppress zero inches"),            kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Primary_units_SuppressZeroInches"}, \
  ZQ_TOL_FEET_ROWS                                                                                                                                                                                     \
  ZQ_ALT_ROWS(AltLeading)

const ZqRow kAlignedRows[] = {ZQ_LINEAR_HEAD ZQ_LINEAR_TAIL(getYesNo)};
const ZqRow kRotatedRows[] = {ZQ_LINEAR_HEAD ZQ_LINEAR_TAIL(getVarOfRow<kAltTrailingRow>)};
const ZqRow kArcRows[] = {
  {ZQ_TEXT,    PT("Fractional type"),                 kZqUntyped, nullptr,                  isFractionReadOnly,           getFraction,                    setVarChoice<kFraction>,        "Text_FractionalType"},
  {ZQ_TEXT,    PT("Arc length symbol"),               kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kArcSymbol>,       setVarChoice<kArcSymbol>,       "Geometry_ArcLengthSymbol"},
  {ZQ_TEXT,    PT("Measurement"),                     kZqUntyped, nullptr,                  kZqReadOnly,                  getMeasurement,                 nullptr,                        "Text_Measurement"},
  ZQ_LINEAR_TAIL(getYesNo)
};

template <class Kind, const char* MeasurementIcon>
struct AngularRows {
  static const ZqRow rows[5];
};
template <class Kind, const char* MeasurementIcon>
const ZqRow AngularRows<Kind, MeasurementIcon>::rows[5] = {
    {ZQ_TEXT,    PT("Measurement"),                   kZqDouble,  ZqGuid::kAngleGUID,       kZqReadOnly,                  getAngleMeasurement,            nullptr,                        MeasurementIcon},
    {ZQ_PRIMARY, PT("Angle precision"),               kZqUntyped, nullptr,                  kZqEditable,                  getAnglePrecision,              setAngleChoice,                 "Primary_units_AnglePrecision"},
    {ZQ_PRIMARY, PT("Angle format"),                  kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kAngleFormat>,     setVarChoice<kAngleFormat>,     "Primary_units_AngleFormat"},
    {ZQ_PRIMARY, PT("Suppress leading zeros"),        kZqUntyped, nullptr,                  isAngularZerosReadOnly<Kind>, getAngleV,                      setAngleV,                      "Primary_units_SuppressLeadingZeroes"},
    {ZQ_PRIMARY, PT("Suppress trailing zeros"),       kZqUntyped, nullptr,                  isAngularZerosReadOnly<Kind>, getAngleV,                      setAngleV,                      "Primary_units_SuppressTrailingZeroes"},
};
constexpr char kTwoLineIcon[] = "Text_Measurement";
constexpr char kThreePointIcon[] = "Geometry_SurfaceType";
using TwoLineRows = AngularRows<OdDb2LineAngularDimension, kTwoLineIcon>;
using ThreePointRows = AngularRows<OdDb3PointAngularDimension, kThreePointIcon>;

const ZqRow kDiametricRows[] = {
  {ZQ_LA,      PT("Dim line 1"),                      kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine1"},
  {ZQ_LA,      PT("Dim line 2"),                      kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine2"},
};
const ZqRow kRadialRows[] = {
  {ZQ_LA,      PT("DimLine"),                         kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine2"},
};
using RL = OdDbRadialDimensionLarge;
template <int Axis> constexpr auto getOverrideCenter = ZqGetUcsCoordinate<RL, &RL::overrideCenter, Axis>;
template <int Axis> constexpr auto setOverrideCenter = ZqSetUcsCoordinate<RL, &RL::overrideCenter, &RL::setOverrideCenter, Axis>;
template <int Axis> constexpr auto getJog = ZqGetUcsCoordinate<RL, &RL::jogPoint, Axis>;
template <int Axis> constexpr auto setJog = ZqSetUcsCoordinate<RL, &RL::jogPoint, &RL::setJogPoint, Axis>;
constexpr auto getJogAngle = ZqGetDouble<RL, &RL::jogAngle>;
constexpr auto setJogAngle = ZqSetDouble<RL, &RL::setJogAngle>;
const ZqRow kRadialLargeRows[] = {
  {ZQ_LA,      PT("DimLine"),                         kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_DimLine2"},
  {ZQ_LA,      PT("Center location override X"),      kZqUntyped, nullptr,                  kZqEditable,                  getOverrideCenter<0>,           setOverrideCenter<0>,           "Lines_Arrows_CenterOverrideX"},
  {ZQ_LA,      PT("Center location override Y"),      kZqUntyped, nullptr,                  kZqEditable,                  getOverrideCenter<1>,           setOverrideCenter<1>,           "Lines_Arrows_CenterOverrideY"},
  {ZQ_LA,      PT("Jog location X"),                  kZqUntyped, nullptr,                  kZqEditable,                  getJog<0>,                      setJog<0>,                      "Lines_Arrows_JogLocationX"},
  {ZQ_LA,      PT("Jog location Y"),                  kZqUntyped, nullptr,                  kZqEditable,                  getJog<1>,                      setJog<1>,                      "Lines_Arrows_JogLocationY"},
  {ZQ_LA,      PT("Jog angle"),                       kZqDouble,  ZqGuid::kAngleGUID,       kZqEditable,                  getJogAngle,                    setJogAngle,                    "Lines_Arrows_JogAngle",        kVisKeep, ZqRange(0.0872664625997165, 1.5707963267948966)},
};

// The ordinate's text position: above the leader or centred on it.
using O = OdDbOrdinateDimension;
const ZqRow kOrdinateRows[] = {
  {ZQ_LA,      PT("ExtLine LWeight"),                 kZqInt32,   ZqGuid::kLineweightGUID,  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineWeight"},
  {ZQ_LA,      PT("ExtLine LStyle"),                  kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineStyle1"},
  {ZQ_LA,      PT("ExtLine fixed"),                   kZqUntyped, nullptr,                  kZqEditable,                  getYesNo,                       setV,                           "Lines_Arrows_ExtLineFixed"},
  {ZQ_LA,      PT("ExtLine fixed length"),            kZqUntyped, nullptr,                  isFixedLengthReadOnly,        getV,                           setV,                           "Lines_Arrows_ExtLineFixedLength", kVisKeep, kNotNegative},
  {ZQ_LA,      PT("ExtLine LColor"),                  kZqColor,   nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineColor"},
  {ZQ_LA,      PT("ExtLine offset"),                  kZqUntyped, nullptr,                  kZqEditable,                  getV,                           setV,                           "Lines_Arrows_ExtLineOffset",   kVisKeep, kNotNegative},
  {ZQ_TEXT,    PT("Text pos vert"),                   kZqUntyped, nullptr,                  kZqEditable,                  getVarChoice<kTextPosVert>,     setVarChoice<kTextPosVert>,     "Text_PosVert"},
  ZQ_LINEAR_HEAD
  ZQ_UNITS_ROWS()
  // The tolerance feet/inch pair is listed twice, as the palette has always shown it.
  ZQ_TOL_FEET_ROWS
  ZQ_TOL_FEET_ROWS
  ZQ_ALT_ROWS(getYesNo)
};

}  // namespace

ZQ_DEFINE_PROVIDER(CZqAlignedDimensionPE, QT_TRANSLATE_NOOP("entity_types", "AlignedDimension"), kAlignedRows)
ZQ_DEFINE_PROVIDER(CZqRotatedDimensionPE, QT_TRANSLATE_NOOP("entity_types", "RotatedDimension"), kRotatedRows)
ZQ_DEFINE_PROVIDER(CZq2LineAngularDimensionPE, QT_TRANSLATE_NOOP("entity_types", "2LineAngularDimension"), TwoLineRows::rows)
ZQ_DEFINE_PROVIDER(CZq3PointAngularDimensionPE, QT_TRANSLATE_NOOP("entity_types", "3PointAngularDimension"), ThreePointRows::rows)
ZQ_DEFINE_PROVIDER(CZqArcDimensionPE, QT_TRANSLATE_NOOP("entity_types", "ArcLengthDimension"), kArcRows)
ZQ_DEFINE_PROVIDER(CZqRadialDimensionPE, QT_TRANSLATE_NOOP("entity_types", "RadialDimension"), kRadialRows)
ZQ_DEFINE_PROVIDER(CZqRadialDimensionLargePE, QT_TRANSLATE_NOOP("entity_types", "RadialDimensionLarge"), kRadialLargeRows)
ZQ_DEFINE_PROVIDER(CZqDiametricDimensionPE, QT_TRANSLATE_NOOP("entity_types", "DiametricDimension"), kDiametricRows)
ZQ_DEFINE_PROVIDER(CZqOrdinateDimensionPE, QT_TRANSLATE_NOOP("entity_types", "OrdinateDimension"), kOrdinateRows)

// --- The kinds' listings -------------------------------------------------------------------------------------

namespace {
#define II(s) QCoreApplication::translate("info_items", s)

template <class Kind, class Body>
void printKind(CZqDimensionInfo* self, const OdDbObject* object, CZqPrintInfoContext* context, Body body) {
  ZqPrintInfoFrame<Kind>(self, object, context, body);
}
}  // namespace

void CZqAlignedDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbAlignedDimension>(this, object, context, [&](const OdDbAlignedDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "aligned"), false);
    context->PrintPoint(II("1st extension  defining point"), d->xLine1Point());
    context->PrintPoint(II("2nd extension  defining point"), d->xLine2Point());
    context->PrintPoint(II("dimension line defining point"), d->dimLinePoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

void CZqRotatedDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbRotatedDimension>(this, object, context, [&](const OdDbRotatedDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "rotated"), false);
    context->PrintPoint(II("1st extension defining point"), d->xLine1Point());
    context->PrintPoint(II("2nd extension defining point"), d->xLine2Point());
    context->PrintPoint(II("defining point"), d->dimLinePoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

void CZq2LineAngularDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDb2LineAngularDimension>(this, object, context, [&](const OdDb2LineAngularDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "angular"), false);
    context->PrintPoint(II("1st extension defined line start point"), d->xLine1Start());
    context->PrintPoint(II("1st extension defined line end point"), d->xLine1End());
    context->PrintPoint(II("2nd extension defined line start point"), d->xLine2Start());
    context->PrintPoint(II("2nd extension defined line end point"), d->xLine2End());
    context->PrintPoint(II("dimension arc defined point"), d->arcPoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

// The one kind whose listing ends with its style: no overrides follow.
void CZq3PointAngularDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDb3PointAngularDimension>(this, object, context, [&](const OdDb3PointAngularDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "angular"), false);
    context->PrintPoint(II("1st extension defining point"), d->xLine1Point());
    context->PrintPoint(II("2nd extension defining point"), d->xLine2Point());
    context->PrintPoint(II("arc center defining point"), d->centerPoint());
    context->PrintPoint(II("dimension arc defining point"), d->arcPoint());
    printTail(object, context);
  });
}

void CZqArcDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbArcDimension>(this, object, context, [&](const OdDbArcDimension* d) {
    printHead(object, context, nullptr, true);
    context->PrintPoint(II("1st extension defining point"), d->xLine1Point());
    context->PrintPoint(II("2nd extension defining point"), d->xLine2Point());
    context->PrintPoint(II("arc center defining point"), d->centerPoint());
    context->PrintPoint(II("dimension arc defining point"), d->arcPoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

void CZqDiametricDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbDiametricDimension>(this, object, context, [&](const OdDbDiametricDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "diameter"), true);
    context->PrintPoint(II("far defining point"), d->farChordPoint());
    context->PrintPoint(II("defining point"), d->chordPoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
    context->PrintInt(CZqString("DIMTMOVE"), d->dimtmove());
    context->PrintBool(CZqString("DIMUPT"), d->dimupt());
  });
}

void CZqOrdinateDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbOrdinateDimension>(this, object, context, [&](const OdDbOrdinateDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "ordinate"), false);
    context->PrintPoint(II("feature defining point"), d->definingPoint());
    context->PrintPoint(II("leader defining point"), d->leaderEndPoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

void CZqRadialDimensionLargeInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbRadialDimensionLarge>(this, object, context, [&](const OdDbRadialDimensionLarge* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "jogged"), false);
    context->PrintPoint(II("center defining point"), d->center());
    context->PrintPoint(II("override center defining point"), d->overrideCenter());
    context->PrintPoint(II("chord defining point"), d->chordPoint());
    context->PrintPoint(II("jog defining point"), d->jogPoint());
    context->PrintAngle(II("jog angle"), d->jogAngle());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
  });
}

void CZqRadialDimensionInfo::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  printKind<OdDbRadialDimension>(this, object, context, [&](const OdDbRadialDimension* d) {
    printHead(object, context, QT_TRANSLATE_NOOP("info_values", "radial"), false);
    context->PrintPoint(II("center defining point"), d->center());
    context->PrintPoint(II("defining point"), d->chordPoint());
    printTail(object, context);
    PrintDimStyleOverrides(object, context);
    context->PrintInt(CZqString("DIMTMOVE"), d->dimtmove());
    context->PrintBool(CZqString("DIMUPT"), d->dimupt());
  });
}
