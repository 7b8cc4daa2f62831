#include "CZqDocument.h"

namespace {

// The abstract-view protocol of the document views.
class CZqViewAbstractViewPE : public OdAbstractViewPE {
 public:
  bool getUcs(const OdRxObject* view, OdGePoint3d& origin, OdGeVector3d& xAxis,
              OdGeVector3d& yAxis) const override {
    const CZqView* v = odrxCast<CZqView>(view);
    if (!v) return false;
    v->getUcs(origin, xAxis, yAxis);
    return true;
  }
  void setUcs(OdRxObject* view, const OdGePoint3d& origin, const OdGeVector3d& xAxis,
              const OdGeVector3d& yAxis) const override {
    if (CZqView* v = odrxCast<CZqView>(view)) v->setUcs(origin, xAxis, yAxis);
  }
};

CZqDocument* g_activeDocument = nullptr;

}  // namespace

OdRxClass* CZqView::desc() {
  static OdRxClass* s_pDesc = [] {
    OdRxClass* cls = newOdRxClass(L"CZqView", OdRxObject::desc());
    static OdStaticRxObject<CZqViewAbstractViewPE> s_viewPE;
    cls->addX(OdAbstractViewPE::desc(), &s_viewPE);
    return cls;
  }();
  return s_pDesc;
}
OdRxClass* CZqView::isA() const { return CZqView::desc(); }
void CZqView::rxInit() { CZqView::desc(); }
void CZqView::rxUninit() {}

CZqView::CZqView(const CZqDocument* document) : m_document(document) {}
CZqView::~CZqView() = default;

void CZqView::getUcs(OdGePoint3d& origin, OdGeVector3d& xAxis, OdGeVector3d& yAxis) const {
  const OdDbDatabase* db = m_document ? m_document->database() : nullptr;
  if (m_ownUcs || !db) {
    origin = m_origin;
    xAxis = m_x;
    yAxis = m_y;
    return;
  }
  origin = db->getUCSORG();
  xAxis = db->getUCSXDIR();
  yAxis = db->getUCSYDIR();
}

void CZqView::setUcs(const OdGePoint3d& origin, const OdGeVector3d& xAxis, const OdGeVector3d& yAxis) {
  if (xAxis.isZeroLength() || yAxis.isZeroLength() || xAxis.isParallelTo(yAxis))
    throw OdError(eInvalidInput, OdString("UCS axes must be non-zero and not parallel"));
  const OdGeVector3d x = xAxis.normal();
  const OdGeVector3d z = x.crossProduct(yAxis).normal();
  m_origin = origin;
  m_x = x;
  m_y = z.crossProduct(x).normal();
  m_ownUcs = true;
}

CZqDocument::CZqDocument(OdDbDatabase* db) : m_db(db), m_view(new CZqView(this)) {}

CZqDocument::~CZqDocument() {
  if (g_activeDocument == this) g_activeDocument = nullptr;
}

CZqDocument* CZqDocument::active() { return g_activeDocument; }
void CZqDocument::setActive(CZqDocument* document) { g_activeDocument = document; }
