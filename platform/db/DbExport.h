#pragma once
#define DB_API __attribute__((visibility("default")))
