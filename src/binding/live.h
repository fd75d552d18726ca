#pragma once
// What elements and their data sources need of the process.

namespace quor {

struct Live {
    // True in the editor: sources made while it is true stay silent, and a load fetches no data.
    bool DesignMode = false;
};

} // namespace quor
