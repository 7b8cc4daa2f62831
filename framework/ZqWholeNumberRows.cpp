#include "ZqWholeNumberRows.h"
#include <cmath>

int ZqTakeWholeNumber(const CZqPropertyDescription& description, const CZqVariant& value, int& n) {
  double v = 0;
  if (value.GetType() == CZqVariant::kVtInt32) v = value.GetInt32();
  else if (value.GetType() == CZqVariant::kVtDouble) v = value.GetDouble();
  else return kZqSetRefused;
  if (!std::isfinite(v) || v != std::floor(v) || std::fabs(v) > 2e9)
    return ZqRefuseWith(QCoreApplication::translate("errors", "%1 is a whole number.").arg(description.GetName().qstring()));
  if (const int refused = ZqCheckLimit(description, v)) return refused;
  n = int(v);
  return 0;
}
