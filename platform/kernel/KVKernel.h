#pragma once
// Object information: the protocol that prints an object's listing, and the
// sink that formats each labelled value in the drawing's units.
#include "KernelExport.h"
#include "CZqString.h"
#include "OdRxClass.h"
#include "OdGePlane.h"
#include <QVariant>
#include <vector>

class OdDbObject;
class OdDbDatabase;

class ZQKERNEL_API CZqPrintInfoContext {
 public:
  // What kind of value a line carries; the names are those used in
  // machine-readable listings.
  enum Kind { kPoint, kDistance, kArea, kAngle, kScale, kWidth, kInt, kBool, kString, kVector, kExtents };
  static const char* kindName(Kind kind);

  // One printed line: the label, the value's kind, the value itself (a
  // number, a list of numbers for points and vectors, a list of two points
  // for extents, a bool, a string, or null for a label-only line) and the
  // text as printed.
  struct Line {
    QString label;
    Kind kind;
    QVariant value;
    QString text;
  };

  // db: the drawing whose units format the values. printInUcs: list in the
  // current UCS (points and vectors converted, world-to-working-plane matrix
  // of the UCS). maxElements: how many CheckCounter calls answer true
  // before the listing must stop (negative: no limit).
  explicit CZqPrintInfoContext(const OdDbDatabase* db, bool printInUcs = false, int maxElements = -1);
  virtual ~CZqPrintInfoContext();

  virtual void PrintPoint(const CZqString& label, const OdGePoint3d& point);
  virtual void PrintPoint(const CZqString& label, const OdGePoint2d& point);
  virtual void PrintDist(const CZqString& label, double value);
  virtual void PrintArea(const CZqString& label, double value);
  virtual void PrintAngle(const CZqString& label, double radians);
  virtual void PrintScale(const CZqString& label, double value);
  virtual void PrintWidth(const CZqString& label, double value);
  virtual void PrintInt(const CZqString& label, int value);
  virtual void PrintBool(const CZqString& label, bool value);
  virtual void PrintString(const CZqString& label, const CZqString& value);
  virtual void PrintString(const CZqString& label);
  virtual void PrintVector3D(const CZqString& label, const OdGeVector3d& vector);
  virtual void PrintBoundingBox(const CZqString& label, const OdGeExtents3d& extents);

  virtual bool IsPrintInUCS() const { return m_inUcs; }
  virtual OdGeMatrix3d GetWorldToWorkingPlaneMatrix() const;
  // False once the listing must stop (the element limit is reached or the
  // listing was cancelled).
  virtual bool CheckCounter();
  void Cancel() { m_cancelled = true; }
  int CounterCalls() const { return m_counterCalls; }

  const std::vector<Line>& Lines() const { return m_lines; }
  // Every line as "label: text", one per line, as a listing prints them.
  QString Text() const;

 private:
  void add(const CZqString& label, Kind kind, const QVariant& value, const QString& text);
  QString formatDistance(double v) const;

  const OdDbDatabase* m_db;
  bool m_inUcs;
  int m_max;
  int m_counterCalls = 0;
  bool m_cancelled = false;
  std::vector<Line> m_lines;
};

// The information protocol attached to drawing classes. The base
// PrintObjectInfo prints the lines every entity has: class name, handle,
// layer, space, colour and linetype.
class ZQKERNEL_API CZqPrintObjectInfoPE : public OdRxObject {
  ODRX_DECLARE_MEMBERS(CZqPrintObjectInfoPE);

 public:
  CZqPrintObjectInfoPE();
  ~CZqPrintObjectInfoPE() override;
  // The object's kind as a listing names it ("LINE").
  virtual CZqString GetClassName(const OdDbObject* object) const;
  virtual void PrintObjectInfo(const OdDbObject* object, CZqPrintInfoContext* context);
  // The header line of a listing: the kind and the handle.
  virtual void PrintObjectHeader(const OdDbObject* object, CZqPrintInfoContext* context);
};
using CZqPrintObjectInfoPEPtr = OdSmartPtr<CZqPrintObjectInfoPE>;
