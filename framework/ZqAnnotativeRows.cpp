#include "ZqAnnotativeRows.h"

#include "CZqObjectAnnotationContext.h"
#include "DbText.h"
#include "ZqCallbacks.h"
#include "ZqEnumerations.h"

#include <QCoreApplication>

#include <map>
#include <string>

// The description of each owner's grouped action, for the catalog.
[[maybe_unused]] constexpr const char* kEditScales[] = {
    QT_TRANSLATE_NOOP("CZqTextPE", "Edit annotation scales"),    QT_TRANSLATE_NOOP("CZqMTextPE", "Edit annotation scales"),
    QT_TRANSLATE_NOOP("CZqDimensionPE", "Edit annotation scales"), QT_TRANSLATE_NOOP("CZqLeaderPE", "Edit annotation scales"),
    QT_TRANSLATE_NOOP("CZqMLeaderPE", "Edit annotation scales"),
};

bool ZqIsAnnotative(const OdDbObject* object, bool* orientationFollowsSheet) {
  return CZqObjectAnnotationContext::IsAnnotative(object, orientationFollowsSheet);
}

CZqVariant ZqGetAnnotative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  if (!ZqReadable<OdDbObject>(object)) return CZqVariant();
  return ZqEnumeration(kZqYesNo, ZqIsAnnotative(object) ? 0 : 1);
}

int ZqSetAnnotative(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant& value, const CZqVariant&) {
  OdDbObject* o = ZqWritable<OdDbObject>(object);
  int32_t tag = 0;
  if (!o || !ZqChosenTag(value, tag) || (tag != 0 && tag != 1)) return kZqSetRefused;
  const bool on = tag == 0;
  if (on == ZqIsAnnotative(o)) return kZqSetApplied;
  if (const auto* text = odrxCast<OdDbText>(o);
      on && text && (text->horizontalMode() == OdDb::kTextAlign || text->horizontalMode() == OdDb::kTextFit))
    return ZqRefuseWith(QCoreApplication::translate("errors", "A text justified Aligned or Fit cannot be annotative."));
  QString why;
  if (!CZqObjectAnnotationContext::SetAnnotative(o, on, false, &why)) return ZqRefuseWith(why);
  return kZqSetApplied;
}

CZqVariant ZqGetAnnotationScale(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  if (!ZqReadable<OdDbObject>(object)) return CZqVariant();
  return CZqVariant(CZqString(CZqObjectAnnotationContext(object->objectId()).GetCurrentScale()));
}

CZqVariant ZqGetAnnotationScales(const OdDbObject* object, const CZqPropertyDescription&, const CZqVariant&) {
  if (!ZqReadable<OdDbObject>(object)) return CZqVariant();
  QStringList names;
  for (const OdString& n : CZqObjectAnnotationContext(object->objectId()).Scales()) names << n.qstring();
  return CZqVariant(CZqString(names.join(QStringLiteral(", "))));
}

CZqVariant ZqAnnotationScalesAction(const OdArray<OdDbObjectId>& objects, const CZqPropertyDescription&, const CZqVariant&,
                                    const CZqVariant&) {
  QStringList names;
  for (const OdDbObjectId& id : objects)
    for (const OdString& n : CZqObjectAnnotationContext(id).Scales())
      if (!names.contains(n.qstring(), Qt::CaseInsensitive)) names << n.qstring();
  // In the drawing's order, the names it does not list last.
  const OdDbDatabase* db = objects.isEmpty() ? nullptr : objects[0].database();
  if (db) {
    QStringList ordered;
    for (const OdDbAnnotationScale& s : db->annotationScales().scales)
      if (names.contains(s.name.qstring(), Qt::CaseInsensitive)) ordered << s.name.qstring();
    for (const QString& n : names)
      if (!ordered.contains(n, Qt::CaseInsensitive)) ordered << n;
    names = ordered;
  }
  return CZqVariant(CZqString(names.join(QStringLiteral(", "))));
}

bool ZqIsAnnotationScaleReadOnly(const OdDbObject* object, const CZqPropertyDescription& description) {
  if (description.GetNameKey().qstring() != QLatin1String("Annotative Scale")) return false;
  return !ZqIsAnnotative(object);
}

void ZqAddAnnotativeRows(const OdDbObject* object, CZqPropertiesContainer* container, const char* category,
                         const char* owner) {
  // The two rows of each category, made once: descriptions keep a pointer
  // to the row they were built from.
  static std::map<std::string, std::pair<ZqRow, ZqRow>> made;
  auto it = made.find(category);
  if (it == made.end()) {
    const ZqRow annotative = {category, QT_TRANSLATE_NOOP("property_types", "Annotative"), kZqUntyped, nullptr,
                              kZqEditable, ZqGetAnnotative, ZqSetAnnotative, "Misc_annotative", kVisKeep, kZqAny, "Misc"};
    const ZqRow scale = {category, QT_TRANSLATE_NOOP("property_types", "Annotative Scale"), kZqUntyped,
                         ZqGuid::kLineEditToolButtonGUID, ZqIsAnnotationScaleReadOnly, ZqGetAnnotationScale, nullptr,
                         "Misc_annotative_scale", kVisKeep, kZqAny, "Misc"};
    it = made.emplace(category, std::pair{annotative, scale}).first;
  }
  container->AddDynamic(ZqBuildDynamicDescription(it->second.first));
  if (!ZqIsAnnotative(object)) return;
  CZqCustomPropertyDescription* d = ZqBuildDynamicDescription(it->second.second);
  d->SetVisibility(d->GetVisibility() ^ 8);
  d->PutGroupActionMethod(ZqAnnotationScalesAction);
  d->SetDescription(CZqString(QCoreApplication::translate(owner, "Edit annotation scales")));
  container->AddDynamic(d);
}
