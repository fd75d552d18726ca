#pragma once
// What the tests at the window use besides what all tests use.

#include "qt/toolkit.h"
#include "tests/test.h"

#include <QTest>
