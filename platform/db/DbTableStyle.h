#pragma once
// Table styles: how tables are laid out (direction, cell margins, title and
// header rows). Owned by the ACAD_TABLESTYLE dictionary, which holds their
// names; tables refer to their style by handle.
#include "DbDictionary.h"

namespace OdDb {
enum FlowDirection { kTtoB = 0, kBtoT = 1 };
}

class DB_API OdDbTableStyle : public OdDbObject {
  ODRX_DECLARE_MEMBERS(OdDbTableStyle);

 public:
  static OdSmartPtr<OdDbTableStyle> createObject();
  OdString name() const { assertReadEnabled(); return oddbNameInOwnerDictionary(this); }
  void setName(const OdString& name) { assertWriteEnabled(); oddbRenameInOwnerDictionary(this, name); }
  OdString description() const { assertReadEnabled(); return m_description; }
  void setDescription(const OdString& s) { assertWriteEnabled(); m_description = s; }
  OdDb::FlowDirection flowDirection() const { assertReadEnabled(); return m_flow; }
  void setFlowDirection(OdDb::FlowDirection d) { assertWriteEnabled(); m_flow = d; }
  double horzCellMargin() const { assertReadEnabled(); return m_horzMargin; }
  void setHorzCellMargin(double v) { assertWriteEnabled(); m_horzMargin = v; }
  double vertCellMargin() const { assertReadEnabled(); return m_vertMargin; }
  void setVertCellMargin(double v) { assertWriteEnabled(); m_vertMargin = v; }
  bool isTitleSuppressed() const { assertReadEnabled(); return m_noTitle; }
  void suppressTitleRow(bool v) { assertWriteEnabled(); m_noTitle = v; }
  bool isHeaderSuppressed() const { assertReadEnabled(); return m_noHeader; }
  void suppressHeaderRow(bool v) { assertWriteEnabled(); m_noHeader = v; }
  void copyFrom(const OdRxObject* source) override;

 private:
  OdString m_description;
  OdDb::FlowDirection m_flow = OdDb::kTtoB;
  double m_horzMargin = 0.06, m_vertMargin = 0.06;
  bool m_noTitle = false, m_noHeader = false;
};
using OdDbTableStylePtr = OdSmartPtr<OdDbTableStyle>;
