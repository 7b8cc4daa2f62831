#pragma once
#define ZQKERNEL_API __attribute__((visibility("default")))
