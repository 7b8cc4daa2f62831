#include "CZqObjectAnnotationContext.h"

#include "DbMText.h"
#include "DbRelease.h"
#include "DbText.h"

#include <QCoreApplication>

#include <cmath>

namespace {

const OdString kAnnotativeApp("AcadAnnotative");
const OdString kOrientationApp("AcadAnnoPO");
constexpr int kAnnotativeRelease = 1015;  // R2000: the first release with the scale dictionaries

// The flag of an application's extended data: for AcadAnnotative the second
// 1070 inside the braces after "AnnotativeData" (the first is the data's
// version), for AcadAnnoPO its first 1070. -1 when there is none.
int xdataFlag(const OdDbObject* object, const OdString& app) {
  OdResBufPtr chain = object->xData(app);
  if (!chain) return -1;
  const bool annotative = app == kAnnotativeApp;
  int seen = 0;
  for (const OdResBuf* rb = chain->next(); rb; rb = rb->next()) {
    if (rb->restype() != OdResBuf::kDxfXdInteger16) continue;
    if (!annotative || ++seen == 2) return rb->getInt16();
  }
  return -1;
}

OdResBufPtr annotativeData(bool on) {
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, kAnnotativeApp);
  OdResBuf* rb = head.get();
  rb = rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdAsciiString, OdString("AnnotativeData")).get());
  rb = rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, OdString("{")).get());
  rb = rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, 1).get());
  rb = rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, on ? 1 : 0).get());
  rb->setNext(OdResBuf::newRb(OdResBuf::kDxfXdControlString, OdString("}")).get());
  return head;
}

// The object's application data, or (when `on` is false and the object has
// none) nothing at all: an object that never was annotative gets no data.
OdResBufPtr orientationData(bool on) {
  OdResBufPtr head = OdResBuf::newRb(OdResBuf::kDxfRegAppName, kOrientationApp);
  if (on) head->setNext(OdResBuf::newRb(OdResBuf::kDxfXdInteger16, 1).get());
  return head;
}

bool canHold(OdDbObject* object, QString* why) {
  if (!object || !object->isWriteEnabled()) {
    if (why) *why = QCoreApplication::translate("errors", "The object is not open for changes.");
    return false;
  }
  const int release = OdDb::databaseRelease(object->database());
  if (release != 0 && release < kAnnotativeRelease) {
    if (why)
      *why = QCoreApplication::translate("errors", "Annotative objects need a drawing saved as %1 or later; this drawing is %2.")
                 .arg(OdDb::releaseName(kAnnotativeRelease), OdDb::releaseName(release));
    return false;
  }
  return true;
}

}  // namespace

CZqObjectAnnotationContext::CZqObjectAnnotationContext(const OdDbObjectId& id) : m_id(id) {}

bool CZqObjectAnnotationContext::IsAnnotative(const OdDbObject* object, bool* orientationFollowsSheet) {
  const bool annotative = object && xdataFlag(object, kAnnotativeApp) == 1;
  if (orientationFollowsSheet) *orientationFollowsSheet = annotative && xdataFlag(object, kOrientationApp) == 1;
  return annotative;
}

bool CZqObjectAnnotationContext::IsAnnotative(const OdDbObjectId& id, bool* orientationFollowsSheet) {
  OdDbObjectPtr object = id.isNull() ? OdDbObjectPtr() : id.openObject();
  return IsAnnotative(object.get(), orientationFollowsSheet);
}

bool CZqObjectAnnotationContext::SetAnnotative(OdDbObject* object, bool on, bool matchOrientation, QString* why) {
  if (!canHold(object, why)) return false;
  // Turning off keeps the data with its flag cleared, as a host does; an
  // object that never was annotative is left without any.
  if (on || object->xData(kAnnotativeApp)) object->setXData(annotativeData(on).get());
  if (on ? matchOrientation : bool(object->xData(kOrientationApp))) object->setXData(orientationData(on && matchOrientation).get());
  return true;
}

bool CZqObjectAnnotationContext::SetAnnotative(const OdDbObjectId& id, bool on, bool matchOrientation, QString* why) {
  OdDbObjectPtr object = id.isNull() ? OdDbObjectPtr() : id.openObject(OdDb::kForWrite);
  return SetAnnotative(object.get(), on, matchOrientation, why);
}

bool CZqObjectAnnotationContext::SetMatchOrientation(OdDbObject* object, bool on, QString* why) {
  if (!canHold(object, why)) return false;
  if (!IsAnnotative(object)) {
    if (why) *why = QCoreApplication::translate("errors", "Only an annotative object can follow the orientation of the sheet.");
    return false;
  }
  if (on || object->xData(kOrientationApp)) object->setXData(orientationData(on).get());
  return true;
}

QList<OdString> CZqObjectAnnotationContext::Scales() const {
  OdDbDatabase* db = m_id.database();
  if (!db) return {};
  const OdDbAnnotationScales& scales = db->annotationScales();
  const auto found = scales.objectScales.constFind(quint64(m_id.getHandle()));
  if (found != scales.objectScales.cend() && !found->isEmpty()) return *found;
  return scales.current.isEmpty() ? QList<OdString>() : QList<OdString>{scales.current};
}

OdString CZqObjectAnnotationContext::GetCurrentScale() const {
  const QList<OdString> own = Scales();
  if (own.isEmpty()) return OdString();
  const OdString current = m_id.database()->annotationScales().current;
  for (const OdString& name : own)
    if (name.qstring().compare(current.qstring(), Qt::CaseInsensitive) == 0) return name;
  return own.first();
}

const OdDbAnnotationScale* CZqObjectAnnotationContext::GetByName(const OdString& name) const {
  OdDbDatabase* db = m_id.database();
  return db ? db->annotationScales().byName(name) : nullptr;
}

double CZqObjectAnnotationContext::CurrentFactor() const {
  const OdDbAnnotationScale* scale = GetByName(GetCurrentScale());
  const double factor = scale ? scale->factor() : 1.0;
  return std::abs(factor) <= 1e-10 ? 1.0 : factor;
}

bool CZqObjectAnnotationContext::UpdateAnnotativeTextHeight(OdDbEntity* entity, double height) {
  if (!entity || !std::isfinite(height) || std::abs(height) <= 1e-10) return false;
  if (auto* text = odrxCast<OdDbText>(entity)) {
    text->setHeight(height);
    return true;
  }
  if (auto* mtext = odrxCast<OdDbMText>(entity)) {
    mtext->setTextHeight(height);
    return true;
  }
  return false;
}

void CZqObjectAnnotationContext::UpdateTextFromTextStyle(OdDbEntity* entity) {
  OdDbObjectId styleId;
  if (auto* text = odrxCast<OdDbText>(entity)) styleId = text->textStyle();
  else if (auto* mtext = odrxCast<OdDbMText>(entity)) styleId = mtext->textStyle();
  if (styleId.isNull() || !entity->isWriteEnabled()) return;
  OdDbObjectPtr opened = styleId.openObject();
  auto* style = odrxCast<OdDbTextStyleTableRecord>(opened.get());
  if (!style) return;
  bool styleAnnotative = IsAnnotative(style);
  // Aligned and fitted text takes its size from its two points: it never
  // becomes annotative.
  if (auto* text = odrxCast<OdDbText>(entity);
      text && (text->horizontalMode() == OdDb::kTextAlign || text->horizontalMode() == OdDb::kTextFit))
    styleAnnotative = styleAnnotative && IsAnnotative(entity);
  if (styleAnnotative != IsAnnotative(entity)) SetAnnotative(entity, styleAnnotative, false);
  if (style->textSize() > 1e-10) UpdateAnnotativeTextHeight(entity, style->textSize());
}
