#pragma once
// Message boxes.

#include <string>

namespace quor {

enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;

    // Blocks until it is answered. An empty title stands for none of the message's own. Closing the box answers
    // Cancel where there is one, else No or Ok.
    virtual BoxAnswer Show(const std::string& text, const std::string& title, BoxButtons buttons) = 0;
};

} // namespace quor
