#pragma once
#define GE_API __attribute__((visibility("default")))
