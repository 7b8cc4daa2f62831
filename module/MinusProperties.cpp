#include "MinusProperties.h"
#include <QCoreApplication>

const OdString CZqCommandMinusProperties::globalName() const { return OdString("_-PROPERTIES"); }

const OdString CZqCommandMinusProperties::localName() const {
  return CZqString(QCoreApplication::translate("CZqCommandMinusProperties", "-PROPERTIES",
                                               "Command Name: Needs to be unique and all uppercase."))
      .toOdString();
}

void CZqCommandMinusProperties::ExecuteCommand(OdEdCommandContext*) {}
