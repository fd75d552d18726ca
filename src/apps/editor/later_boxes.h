#pragma once
// Messages of the time before there is a window: kept, and shown when the user is logged on and sees the program.

#include "platform/boxes.h"

#include <string>
#include <utility>
#include <vector>

namespace quor {

class LaterBoxes final : public MessageBoxes {
public:
    // The boxes outlive this object.
    explicit LaterBoxes(MessageBoxes& boxes) : m_boxes(boxes) {}

    // Until the release answers Ok at once; only what needs no other answer is told here.
    BoxAnswer Show(const std::string& text, const std::string& title, BoxButtons buttons) override
    {
        if (m_isReleased) {
            return m_boxes.Show(text, title, buttons);
        }
        m_messages.emplace_back(text, title);
        return BoxAnswer::Ok;
    }

    // All that was told so far; from now on each message at once.
    void Release()
    {
        m_isReleased = true;
        for (const auto& [text, title] : std::exchange(m_messages, {})) {
            m_boxes.Show(text, title, BoxButtons::Ok);
        }
    }

private:
    MessageBoxes& m_boxes;
    bool m_isReleased = false;
    std::vector<std::pair<std::string, std::string>> m_messages;
};

} // namespace quor
