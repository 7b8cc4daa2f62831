#include "KVKernel.h"
#include "DbDatabase.h"
#include "OdDbUnitsFormatter.h"
#include <QCoreApplication>
#include <QStringList>

ODRX_DEFINE_MEMBERS(CZqPrintObjectInfoPE, OdRxObject)

namespace {
QVariantList numbers(std::initializer_list<double> v) {
  QVariantList l;
  for (double d : v) l.append(d);
  return l;
}
}  // namespace

const char* CZqPrintInfoContext::kindName(Kind kind) {
  static const char* const names[] = {"point", "distance", "area", "angle", "scale", "width",
                                      "int", "bool", "string", "vector", "extents"};
  return names[kind];
}

CZqPrintInfoContext::CZqPrintInfoContext(const OdDbDatabase* db, bool printInUcs, int maxElements)
    : m_db(db), m_inUcs(printInUcs), m_max(maxElements) {}

CZqPrintInfoContext::~CZqPrintInfoContext() = default;

void CZqPrintInfoContext::add(const CZqString& label, Kind kind, const QVariant& value, const QString& text) {
  m_lines.push_back(Line{label.qstring(), kind, value, text});
}

QString CZqPrintInfoContext::formatDistance(double v) const {
  return m_db ? m_db->formatter().formatDistance(v).qstring() : QString::number(v, 'f', 4);
}

OdGeMatrix3d CZqPrintInfoContext::GetWorldToWorkingPlaneMatrix() const {
  if (!m_inUcs || !m_db) return OdGeMatrix3d::kIdentity;
  return m_db->coordinateService().wcsToUcsMatrix();
}

void CZqPrintInfoContext::PrintPoint(const CZqString& label, const OdGePoint3d& point) {
  const OdGePoint3d p = GetWorldToWorkingPlaneMatrix() * point;
  add(label, kPoint, numbers({p.x, p.y, p.z}),
      QString("X=%1  Y=%2  Z=%3").arg(formatDistance(p.x), formatDistance(p.y), formatDistance(p.z)));
}

void CZqPrintInfoContext::PrintPoint(const CZqString& label, const OdGePoint2d& point) {
  add(label, kPoint, numbers({point.x, point.y}),
      QString("X=%1  Y=%2").arg(formatDistance(point.x), formatDistance(point.y)));
}

void CZqPrintInfoContext::PrintDist(const CZqString& label, double value) {
  add(label, kDistance, value, formatDistance(value));
}

void CZqPrintInfoContext::PrintArea(const CZqString& label, double value) {
  add(label, kArea, value, m_db ? m_db->formatter().formatArea(value).qstring() : QString::number(value, 'f', 4));
}

void CZqPrintInfoContext::PrintAngle(const CZqString& label, double radians) {
  add(label, kAngle, radians,
      m_db ? m_db->formatter().formatAngle(radians).qstring() : QString::number(radians * 180.0 / OdaPI));
}

void CZqPrintInfoContext::PrintScale(const CZqString& label, double value) {
  add(label, kScale, value, QString::number(value, 'f', m_db ? m_db->getLUPREC() : 4));
}

void CZqPrintInfoContext::PrintWidth(const CZqString& label, double value) {
  add(label, kWidth, value, formatDistance(value));
}

void CZqPrintInfoContext::PrintInt(const CZqString& label, int value) {
  add(label, kInt, value, QString::number(value));
}

void CZqPrintInfoContext::PrintBool(const CZqString& label, bool value) {
  add(label, kBool, value, value ? QCoreApplication::translate("info_values", "Yes") : QCoreApplication::translate("info_values", "No"));
}

void CZqPrintInfoContext::PrintString(const CZqString& label, const CZqString& value) {
  add(label, kString, value.qstring(), value.qstring());
}

void CZqPrintInfoContext::PrintString(const CZqString& label) { add(label, kString, QVariant(), QString()); }

void CZqPrintInfoContext::PrintVector3D(const CZqString& label, const OdGeVector3d& vector) {
  const OdGeVector3d v = GetWorldToWorkingPlaneMatrix() * vector;
  auto n = [&](double d) { return QString::number(d, 'f', m_db ? m_db->getLUPREC() : 4); };
  add(label, kVector, numbers({v.x, v.y, v.z}), QString("X=%1  Y=%2  Z=%3").arg(n(v.x), n(v.y), n(v.z)));
}

void CZqPrintInfoContext::PrintBoundingBox(const CZqString& label, const OdGeExtents3d& extents) {
  OdGeExtents3d e = extents;
  e.transformBy(GetWorldToWorkingPlaneMatrix());
  const OdGePoint3d a = e.minPoint(), b = e.maxPoint();
  QVariantList value{QVariant(numbers({a.x, a.y, a.z})), QVariant(numbers({b.x, b.y, b.z}))};
  add(label, kExtents, value,
      QString("X=%1  Y=%2  Z=%3 - X=%4  Y=%5  Z=%6")
          .arg(formatDistance(a.x), formatDistance(a.y), formatDistance(a.z), formatDistance(b.x),
               formatDistance(b.y), formatDistance(b.z)));
}

bool CZqPrintInfoContext::CheckCounter() {
  ++m_counterCalls;
  if (m_cancelled) return false;
  return m_max < 0 || m_counterCalls <= m_max;
}

QString CZqPrintInfoContext::Text() const {
  QStringList out;
  for (const Line& l : m_lines) out << (l.text.isEmpty() ? l.label : l.label + ": " + l.text);
  return out.join('\n');
}

CZqPrintObjectInfoPE::CZqPrintObjectInfoPE() = default;
CZqPrintObjectInfoPE::~CZqPrintObjectInfoPE() = default;

CZqString CZqPrintObjectInfoPE::GetClassName(const OdDbObject* object) const {
  if (!object || !object->isA()) return CZqString();
  const OdRxClass* cls = object->isA();
  return CZqString(cls->dxfName().isEmpty() ? cls->name() : cls->dxfName());
}

void CZqPrintObjectInfoPE::PrintObjectHeader(const OdDbObject* object, CZqPrintInfoContext* context) {
  if (!object || !context) return;
  context->PrintString(QCoreApplication::translate("info_items", "Class name"), GetClassName(object));
  context->PrintString(QCoreApplication::translate("info_items", "Handle"), CZqString(object->getDbHandle().ascii()));
}

void CZqPrintObjectInfoPE::PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context) {
  if (!object || !context || !object->isReadEnabled()) return;
  PrintObjectHeader(object, context);
  const OdDbEntity* entity = odrxCast<OdDbEntity>(object);
  if (!entity) return;
  context->PrintString(QCoreApplication::translate("info_items", "Layer"), CZqString(entity->layer()));
  QString space = QCoreApplication::translate("info_values", "Block");
  if (OdDbObjectPtr owner = entity->ownerId().openObject()) {
    if (auto btr = OdDbBlockTableRecord::cast(owner.get())) {
      if (btr->isModelSpace()) space = QCoreApplication::translate("info_values", "Model space");
      else if (btr->isPaperSpace()) space = QCoreApplication::translate("info_values", "Paper space");
    }
  }
  context->PrintString(QCoreApplication::translate("info_items", "Space"), CZqString(space));
  context->PrintString(QCoreApplication::translate("info_items", "Color"), CZqString(entity->color().description()));
  context->PrintString(QCoreApplication::translate("info_items", "Linetype"), CZqString(entity->linetype()));
}
