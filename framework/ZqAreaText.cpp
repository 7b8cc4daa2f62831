#include "ZqAreaText.h"
#include "OdDbUnitsFormatter.h"

namespace {
OdDbUnitsFormatter formatterOf(const OdDbObject* object) {
  const OdDbDatabase* db = object ? object->database() : nullptr;
  return db ? db->formatter() : OdDbUnitsFormatter();
}
bool isImperial(const OdDbUnitsFormatter& f) { return f.settings().lunits == 3 || f.settings().lunits == 4; }
constexpr int kDecimal = 2;
constexpr int kCurrentUnits = -1;
}  // namespace

CZqVariant ZqAreaValue(const OdDbObject* object, double area, const CZqVariant& index, const QString& imperialPattern) {
  if (index.GetType() == CZqVariant::kVtDouble && index.GetDouble() == kZqBareAreaRequest) return ZqDouble(area);
  const OdDbUnitsFormatter f = formatterOf(object);
  if (isImperial(f))
    return CZqVariant(imperialPattern.arg(f.formatArea(area, kDecimal).qstring(), f.formatArea(area / 144.0, kDecimal).qstring()));
  return CZqVariant(f.formatArea(area, kCurrentUnits).qstring());
}

bool ZqParseAreaText(const OdDbObject* object, const QString& text, double& area) {
  const OdDbUnitsFormatter f = formatterOf(object);
  QString number = text;
  if (isImperial(f)) {
    const qsizetype at = text.indexOf(QLatin1String("sq. in."));
    if (at < 0) return false;
    number = text.left(at);
  }
  return f.parseArea(OdString(number), area);
}
