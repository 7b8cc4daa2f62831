#pragma once
// Dimension variables (DimVars.def): their descriptions, a value of any of
// them, the dimension style record that holds one of each, and the
// per-dimension overrides kept in the "DSTYLE" extended data of the ACAD
// application.
#include "DbSymbolTable.h"

#include <variant>
#include <vector>

namespace OdDbDimVar {

enum Id : int {
#define DIMVAR(Name, Setter, Code, Kind, Type, Default, Limit, Lo, Hi, Since, Row) k_##Name,
#include "DimVars.def"
  kCount
};

// How a value is kept in a file.
enum class Kind { Real, Angle, Int, Bool, Char, String, Color, LineWeight, TextStyle, Block, Linetype };
// The allowed values.
enum class Limit { Any, NonNegative, Positive, NonZero, Range };

// One variable's value. Integers, characters and line weights are ints;
// records are ids.
using Value = std::variant<double, int, bool, OdString, OdCmColor, OdDbObjectId>;

struct Info {
  Id id;
  const char* name;     // "dimasz"
  int code;             // group code; 0 for none
  Kind kind;
  Limit limit;
  double lo, hi;        // for Limit::Range
  int since;            // oldest release with the code in DIMSTYLE records
  const char* row;      // the untranslated row name, "" for none
  Value defaultValue() const;
  // "DIMASZ"
  OdString upperName() const;
  // Whether the value is a record reference.
  bool isReference() const { return kind == Kind::TextStyle || kind == Kind::Block || kind == Kind::Linetype; }
};

DB_API const Info& info(Id id);
// By name, with or without the "DIM" prefix, without regard to case; null
// when there is no such variable.
DB_API const Info* find(const OdString& name);
// The variable of a group code (0 and unknown codes: null).
DB_API const Info* byCode(int code);

// The part of a variable a row shows (the DIMROW rows of DimVars.def).
enum class Part { Whole, LeadingZeros, TrailingZeros, ZeroFeet, ZeroInches, Before, After, Magnitude };
struct RowUse {
  Id id;
  Part part;
};
// The variables the row of this untranslated name shows, in table order:
// the variable whose Row column names it, then the DIMROW rows. Where two
// variables share a row name, the later one is the angular dimensions'.
DB_API std::vector<RowUse> rowUses(const char* row);

// Whether `v` is of the variable's kind and within its limit; `why` says
// what is wrong in a sentence ("DIMTXT must be greater than 0").
DB_API bool check(Id id, const Value& v, OdString* why = nullptr);
// The value as text (numbers in full precision, colours by name, records by
// name, booleans as 1/0).
DB_API OdString toString(Id id, const Value& v);

// Values of every variable, with the table's defaults.
class DB_API Values {
 public:
  Values();
  const Value& get(Id id) const { return m_values[id]; }
  // Raises OdError(eInvalidInput) with the reason for a value check() refuses.
  void set(Id id, const Value& v);
  friend bool operator==(const Values&, const Values&) = default;

 private:
  Value m_values[kCount];
};

// Typed access to a Value (the accessors' return types).
template <class T>
T as(const Value& v) {
  if constexpr (std::is_same_v<T, wchar_t>) return wchar_t(std::get<int>(v));
  else if constexpr (std::is_same_v<T, OdDb::LineWeight>) return OdDb::LineWeight(std::get<int>(v));
  else return std::get<T>(v);
}
template <class T>
Value of(const T& v) {
  if constexpr (std::is_same_v<T, wchar_t> || std::is_same_v<T, OdDb::LineWeight>) return Value(int(v));
  else return Value(v);
}

}  // namespace OdDbDimVar

class DB_API OdDbDimStyleTableRecord : public OdDbSymbolTableRecord {
  ODRX_DECLARE_MEMBERS(OdDbDimStyleTableRecord);

 public:
  static OdSmartPtr<OdDbDimStyleTableRecord> createObject();

  // One getter and one setter per variable (dimasz(), setDimasz(...)). A
  // setter refuses a value outside the variable's limit with
  // OdError(eInvalidInput) and leaves the style as it was.
#define DIMVAR(Name, Setter, Code, Kind, Type, Default, Limit, Lo, Hi, Since, Row)     \
  Type Name() const { return OdDbDimVar::as<Type>(dimVar(OdDbDimVar::k_##Name)); }     \
  void Setter(Type v) { setDimVar(OdDbDimVar::k_##Name, OdDbDimVar::of<Type>(v)); }
#include "DimVars.def"

  const OdDbDimVar::Value& dimVar(OdDbDimVar::Id id) const { assertReadEnabled(); return m_values.get(id); }
  void setDimVar(OdDbDimVar::Id id, const OdDbDimVar::Value& v);
  const OdDbDimVar::Values& dimVars() const { assertReadEnabled(); return m_values; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdDbDimVar::Values m_values;
};
using OdDbDimStyleTableRecordPtr = OdSmartPtr<OdDbDimStyleTableRecord>;

// A dimension's overrides of its style: the variables listed in its
// "DSTYLE" extended data (application "ACAD"), as pairs of a 1070 group code
// and a value, between 1002 "{" and "}".
namespace OdDbDimStyleOverrides {

struct Entry {
  OdDbDimVar::Id id;
  OdDbDimVar::Value value;
};

// The overrides an object carries, in the order of its extended data.
// Unknown group codes and values of the wrong kind are left out.
DB_API std::vector<Entry> get(const OdDbObject* obj);
// Whether the object overrides `id`; its value in `value`.
DB_API bool find(const OdDbObject* obj, OdDbDimVar::Id id, OdDbDimVar::Value* value = nullptr);
// Sets (or adds) one override; refuses a value check() refuses with
// OdError(eInvalidInput). Other applications' and the ACAD application's
// other data are kept.
DB_API void set(OdDbObject* obj, OdDbDimVar::Id id, const OdDbDimVar::Value& value);
// Removes one override (all of them for kCount).
DB_API void remove(OdDbObject* obj, OdDbDimVar::Id id);

// One line of a listing: the variable, its effective value and where it
// comes from.
struct Line {
  OdDbDimVar::Id id;
  OdDbDimVar::Value value;
  bool overridden;   // from the object's overrides, else from its style
};
// Every variable of the object's effective settings: the style's values
// with the object's overrides applied (a null style: the table's defaults).
DB_API std::vector<Line> effective(const OdDbObject* obj, const OdDbDimStyleTableRecord* style);

}  // namespace OdDbDimStyleOverrides
