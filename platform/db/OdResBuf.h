#pragma once
// A chain of typed values (result buffers), as extended data is stored:
// each item has a group code (restype) and a value whose kind follows the
// code's range.
#include "DbExport.h"
#include "OdRxObject.h"
#include "OdString.h"
#include "OdGePoint.h"
#include <QByteArray>
#include <variant>
#include <cstdint>

class OdResBuf;
using OdResBufPtr = OdSmartPtr<OdResBuf>;

class DB_API OdResBuf : public OdRxObject {
 public:
  // Group codes of extended data.
  enum {
    kDxfXdAsciiString = 1000, kDxfRegAppName = 1001, kDxfXdControlString = 1002,
    kDxfXdLayerName = 1003, kDxfXdBinaryChunk = 1004, kDxfXdHandle = 1005,
    kDxfXdXCoord = 1010, kDxfXdWorldXCoord = 1011, kDxfXdWorldXDisp = 1012, kDxfXdWorldXDir = 1013,
    kDxfXdReal = 1040, kDxfXdDist = 1041, kDxfXdScale = 1042,
    kDxfXdInteger16 = 1070, kDxfXdInteger32 = 1071,
  };
  enum ValueKind { kNone, kString, kDouble, kInt16, kInt32, kInt64, kBool, kPoint, kHandle, kBinary };

  static OdResBufPtr newRb(int restype = -1);
  template <class T>
  static OdResBufPtr newRb(int restype, const T& value) {
    OdResBufPtr rb = newRb(restype);
    rb->setValue(value);
    return rb;
  }

  // The kind of value a group code carries (DXF group-code ranges).
  static ValueKind kindOf(int restype);

  int restype() const { return m_type; }
  void setRestype(int t) { m_type = t; }
  OdResBuf* next() const { return m_next.get(); }
  OdResBufPtr nextPtr() const { return m_next; }
  OdResBuf* setNext(OdResBuf* next) { m_next = next; return next; }
  OdResBuf* last();
  // A deep copy of this item and the items after it.
  OdResBufPtr copyChain() const;
  // A copy of this item alone (no next item).
  OdResBufPtr copyItem() const;

  OdString getString() const;
  double getDouble() const;
  int16_t getInt16() const;
  int32_t getInt32() const;
  int64_t getInt64() const;
  bool getBool() const;
  OdGePoint3d getPoint3d() const;
  uint64_t getHandle() const;
  QByteArray getBinaryChunk() const;

  void setValue(const OdString& v) { m_value = v; }
  void setValue(const char* v) { m_value = OdString(v); }
  void setValue(double v) { m_value = v; }
  void setValue(int v);
  void setValue(int64_t v) { m_value = v; }
  void setValue(bool v) { m_value = v; }
  void setValue(const OdGePoint3d& v) { m_value = v; }
  void setValue(const QByteArray& v) { m_value = v; }
  void setHandle(uint64_t h) { m_value = h; }

  // Item-wise equality of two chains (codes and values).
  static bool chainsEqual(const OdResBuf* a, const OdResBuf* b);

 private:
  int m_type = -1;
  std::variant<std::monostate, OdString, double, int64_t, bool, OdGePoint3d, uint64_t, QByteArray> m_value;
  OdResBufPtr m_next;
};
