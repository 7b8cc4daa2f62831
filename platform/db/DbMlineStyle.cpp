#include "DbMlineStyle.h"

OdSmartPtr<OdDbMlineStyle> OdDbMlineStyle::createObject() { return OdSmartPtr<OdDbMlineStyle>(new OdDbMlineStyle()); }

void OdDbMlineStyle::setName(const OdString& name) {
  assertWriteEnabled();
  if (name == m_name) return;
  // The dictionary entry first: a refused name leaves the style as it was.
  if (isDBRO() && !oddbNameInOwnerDictionary(this).isEmpty()) oddbRenameInOwnerDictionary(this, name);
  else if (name.isEmpty()) throw OdError(eInvalidInput, OdString("empty multiline style name"));
  m_name = name;
}

void OdDbMlineStyle::copyFrom(const OdRxObject* source) {
  OdDbObject::copyFrom(source);
  auto* s = static_cast<const OdDbMlineStyle*>(source);
  // The name too: the dictionary entry, the style's other name, is an
  // object of its own, so undoing a rename puts both back.
  m_name = s->m_name;
  m_description = s->m_description;
  m_flags = s->m_flags;
  m_elements = s->m_elements;
  m_fillColor = s->m_fillColor;
  m_startAngle = s->m_startAngle;
  m_endAngle = s->m_endAngle;
}
