#pragma once
// Providers of the drawing's named records: layers, linetypes, text styles
// and dimension styles, views, groups and styles. Renaming any of them
// renames every reference.
#include "ZqProvider.h"

class CZqLayerPE : public ZqProvider<CZqLayerPE> {
  ZQ_PROVIDER(CZqLayerPE);
};

class CZqLineStylePE : public ZqProvider<CZqLineStylePE> {
  ZQ_PROVIDER(CZqLineStylePE);
};

class CZqTextStylePE : public ZqProvider<CZqTextStylePE> {
  ZQ_PROVIDER(CZqTextStylePE);
};

class CZqDimensionStylePE : public ZqProvider<CZqDimensionStylePE> {
  ZQ_PROVIDER(CZqDimensionStylePE);
};

// Groups, multiline styles and table styles: objects of the drawing's
// dictionaries, named by their entry.
class CZqGroupPE : public ZqProvider<CZqGroupPE> {
  ZQ_PROVIDER(CZqGroupPE);
};

class CZqRichLineStylePE : public ZqProvider<CZqRichLineStylePE> {
  ZQ_PROVIDER(CZqRichLineStylePE);
};

class CZqTableStylePE : public ZqProvider<CZqTableStylePE> {
  ZQ_PROVIDER(CZqTableStylePE);
};

// Named views and the viewport configuration of model space.
class CZqViewTableRecordPE : public ZqProvider<CZqViewTableRecordPE> {
  ZQ_PROVIDER(CZqViewTableRecordPE);
};

class CZqViewportTableRecordPE : public ZqProvider<CZqViewportTableRecordPE> {
  ZQ_PROVIDER(CZqViewportTableRecordPE);
};
