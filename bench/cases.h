#pragma once
// The cases by family: each measures or registers its benchmarks, and makes its rows of what came out.

#include "bench/results.h"

#include <functional>
#include <string_view>
#include <vector>

namespace quor::bench {

struct Family {
    std::string_view name;
    void (*prepare)(Results& results);
    void (*addRows)(const Results& results, std::vector<Row>& rows);
};

extern const Family loading;
extern const Family saving;
extern const Family editing;
extern const Family binding;
extern const Family values;
extern const Family panel;
extern const Family frames;
extern const Family painting;
extern const Family starting;

} // namespace quor::bench
