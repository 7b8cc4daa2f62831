#pragma once
// The host's documents: a drawing open in the host, with the view the user
// looks at. ACTIVE_DOCUMENT is the document that has the focus.
#include "KernelExport.h"
#include "DbAbstractViewPE.h"
#include "DbDatabase.h"

class CZqDocument;

// A view of a document. Its UCS is the database's current UCS unless one
// was set on the view. The view's class has an OdAbstractViewPE attached,
// through which callers read and set that UCS.
class ZQKERNEL_API CZqView : public OdRxObject {
  ODRX_DECLARE_MEMBERS(CZqView);

 public:
  explicit CZqView(const CZqDocument* document);
  ~CZqView() override;

  void getUcs(OdGePoint3d& origin, OdGeVector3d& xAxis, OdGeVector3d& yAxis) const;
  // Gives the view a UCS of its own (axes normalised, Y made perpendicular
  // to X); parallel or zero axes raise OdError(eInvalidInput).
  void setUcs(const OdGePoint3d& origin, const OdGeVector3d& xAxis, const OdGeVector3d& yAxis);
  // The view follows the database's current UCS again.
  void followDatabaseUcs() { m_ownUcs = false; }
  bool hasOwnUcs() const { return m_ownUcs; }

 private:
  const CZqDocument* m_document;
  bool m_ownUcs = false;
  OdGePoint3d m_origin;
  OdGeVector3d m_x{1, 0, 0}, m_y{0, 1, 0};
};
using CZqViewPtr = OdSmartPtr<CZqView>;

class ZQKERNEL_API CZqDocument {
 public:
  explicit CZqDocument(OdDbDatabase* db);
  // A document that is destroyed stops being the active one.
  ~CZqDocument();
  CZqDocument(const CZqDocument&) = delete;
  CZqDocument& operator=(const CZqDocument&) = delete;

  OdDbDatabase* database() const { return m_db; }
  // The current view (never null).
  CZqView* activeView() const { return m_view.get(); }

  // The document that has the focus, or null when none is open.
  static CZqDocument* active();
  static void setActive(CZqDocument* document);

 private:
  OdDbDatabase* m_db;
  CZqViewPtr m_view;
};

#define ACTIVE_DOCUMENT (CZqDocument::active())
