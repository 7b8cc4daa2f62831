#pragma once
// The module object: every provider, information provider and the command
// are members, attached to the drawing classes by initApp and taken down by
// uninitApp.
#include "RxModule.h"
#include "MinusProperties.h"
#include "ZqEntityExPE.h"
#include "ZqLifecycle.h"
#include "Arc.h"
#include "ArcAlignedText.h"
#include "Attribute.h"
#include "AttributeDefinition.h"
#include "Circle.h"
#include "Dimension.h"
#include "Ellipse.h"
#include "Hatch.h"
#include "Leader.h"
#include "Line.h"
#include "MText.h"
#include "MLeader.h"
#include "Point.h"
#include "Polyline.h"
#include "Polyline2d.h"
#include "Polyline3d.h"
#include "Mesh.h"
#include "Mline.h"
#include "Shape.h"
#include "Ray.h"
#include "Solid.h"
#include "Spline.h"
#include "Text.h"
#include "Tolerance.h"
#include "Vertex.h"
#include "Xline.h"
#include "Solids.h"
#include "Blocks.h"
#include "Records.h"
#include "Viewport.h"

#include <vector>

struct ZqAttachment;

// The information provider of a row: a member object, or none for the
// rows whose Info column is ZQ_NO_INFO.
struct ZqNoInfo {};
#define ZQ_NO_INFO ZqNoInfo
template <class Info>
struct ZqInfoMember {
  OdStaticRxObject<Info> object;
  OdRxObject* get() { return &object; }
};
template <>
struct ZqInfoMember<ZqNoInfo> {
  OdRxObject* get() { return nullptr; }
};

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
#define ZQ_ROW(Row, DrawingClass, RegisteredIndex, Provider, Step, Info, InfoPosition) ZqInfoMember<Info> m_info##Row;
#include "ZqProviders.def"
  OdStaticRxObject<CZqCommandMinusProperties> m_command;
};
