#pragma once
// The module object: every provider, information provider and the command
// are members, attached to the drawing classes by initApp and taken down by
// uninitApp.
#include "RxModule.h"
#include "MinusProperties.h"
#include "ZqEntityExPE.h"
#include "ZqLifecycle.h"
#include "Circle.h"
#include "Line.h"
#include "Point.h"
#include "Polyline.h"
#include "Ray.h"
#include "Xline.h"

#include <vector>

struct ZqAttachment;

class CZqPropertiesModule : public OdRxModule {
 public:
  CZqPropertiesModule();
  ~CZqPropertiesModule() override;
  void initApp() override;
  void uninitApp() override;

 private:
  // The rows of the attachment table that have providers, in table order.
  std::vector<ZqAttachment> attachments();
  void startUp(ZqUndoLog& log);

#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition) OdStaticRxObject<Provider> m_##Provider;
#include "ZqProviders.def"
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition) OdStaticRxObject<Info> m_##Info;
#include "ZqProviders.def"
  OdStaticRxObject<CZqCommandMinusProperties> m_command;
};
