#pragma once
// What nearly every test uses: GoogleTest, the ports in memory, and the standard library's usual parts.

#include "tests/support/fake_boxes.h"
#include "tests/support/fake_clipboard.h"
#include "tests/support/fake_dialog.h"
#include "tests/support/fake_files.h"
#include "tests/support/fake_forms.h"
#include "tests/support/fake_login.h"
#include "tests/support/fake_pictures.h"
#include "tests/support/fake_screen.h"
#include "tests/support/fake_server.h"
#include "tests/support/fake_settings.h"
#include "tests/support/fake_system_info.h"
#include "tests/support/fake_timers.h"
#include "tests/support/planned_failures.h"
#include "tests/support/test_reporter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <functional>
#include <limits>
#include <map>
#include <memory>
#include <optional>
#include <random>
#include <set>
#include <span>
#include <sstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

using namespace quor;
