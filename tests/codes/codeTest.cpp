#include "codes/code.h"
#include "table.h"

#include "core/runTimeError.h"

#include <gtest/gtest.h>

TEST(X, Y) {}
