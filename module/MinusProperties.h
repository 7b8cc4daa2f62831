#pragma once
// The command-line form of the properties command.
#include "ZQCommandsBase.h"

class CZqCommandMinusProperties : public CZqCommand {
 public:
  const OdString globalName() const override;
  const OdString localName() const override;

 protected:
  void ExecuteCommand(OdEdCommandContext* pCmdCtx) override;
};
