#pragma once
// Symbol visibility of the platform libraries: their classes are shared with
// the host program and with every module that is loaded into it.
#define OD_EXPORT_SYMBOL __attribute__((visibility("default")))
#define RX_API OD_EXPORT_SYMBOL
