#pragma once
// Multiline styles: the elements (offset, colour, linetype) multilines are
// drawn with, their caps and fill. Owned by the ACAD_MLINESTYLE dictionary;
// the style's own record repeats its name, and multilines name it.
#include "DbDictionary.h"
#include "OdCmColor.h"

class DB_API OdDbMlineStyle : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbMlineStyle);

 public:
  static OdSmartPtr<OdDbMlineStyle> createObject();
  // Flags as the file keeps them (group 70).
  enum Flags {
    kFillOn = 1, kShowMiters = 2, kStartSquare = 16, kStartInnerArcs = 32, kStartRound = 64,
    kEndSquare = 256, kEndInnerArcs = 512, kEndRound = 1024
  };
  OdString name() const { assertReadEnabled(); return m_name; }
  // Renames the style and its dictionary entry (the errors of
  // OdDbDictionary::setName; nothing changes then).
  void setName(const OdString& name);
  void setNameInternal(const OdString& name) { m_name = name; }
  OdString description() const { assertReadEnabled(); return m_description; }
  void setDescription(const OdString& s) { assertWriteEnabled(); m_description = s; }
  int flags() const { assertReadEnabled(); return m_flags; }
  void setFlags(int f) { assertWriteEnabled(); m_flags = f; }
  bool filled() const { return flags() & kFillOn; }
  void setFilled(bool v) { setFlags(v ? m_flags | kFillOn : m_flags & ~kFillOn); }
  bool showMiters() const { return flags() & kShowMiters; }
  OdCmColor fillColor() const { assertReadEnabled(); return m_fillColor; }
  void setFillColor(const OdCmColor& c) { assertWriteEnabled(); m_fillColor = c; }
  // Angles of the start and end caps (radians, 10 to 170 degrees).
  double startAngle() const { assertReadEnabled(); return m_startAngle; }
  void setStartAngle(double a) { assertWriteEnabled(); m_startAngle = a; }
  double endAngle() const { assertReadEnabled(); return m_endAngle; }
  void setEndAngle(double a) { assertWriteEnabled(); m_endAngle = a; }
  int numElements() const { assertReadEnabled(); return m_elements; }
  void setNumElementsInternal(int n) { m_elements = n; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_name, m_description;
  int m_flags = 0, m_elements = 0;
  OdCmColor m_fillColor = OdCmColor::byLayer();
  double m_startAngle = 1.5707963267948966, m_endAngle = 1.5707963267948966;
};
using OdDbMlineStylePtr = OdSmartPtr<OdDbMlineStyle>;
