/// Marks what the shared library hands out.
#pragma once

#define KZEKAMOK_EXPORT __attribute__((visibility("default")))
