#pragma once
#include "ZqEntityExPE.h"

// Properties of text laid along an arc: contents, height, width factor,
// character spacing, the arc's center, normal, radius and angles, and the
// text's offsets from the arc and its ends. It has no information provider.
class CZqArcAlignedTextPE : public ZqProvider<CZqArcAlignedTextPE> {
  ZQ_PROVIDER(CZqArcAlignedTextPE);
};
