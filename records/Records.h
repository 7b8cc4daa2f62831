#pragma once
// Providers of the drawing's named records: layers, linetypes, text styles
// and dimension styles. Renaming any of them renames every reference.
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
