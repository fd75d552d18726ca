#pragma once
// Reads properties by name: for traces, journeys and assistive tools.

#include "base/values.h"
#include "platform/pictures.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

class PropertyVisitor {
public:
    virtual ~PropertyVisitor() = default;
    virtual void Visit(std::string_view name, bool value) = 0;
    virtual void Visit(std::string_view name, std::int32_t value) = 0;
    virtual void Visit(std::string_view name, float value) = 0;
    virtual void Visit(std::string_view name, double value) = 0;
    virtual void Visit(std::string_view name, Color value) = 0;
    virtual void Visit(std::string_view name, const Font& value) = 0;
    virtual void Visit(std::string_view name, const std::string& value) = 0;
    virtual void Visit(std::string_view name, const PictureRef& value) = 0;
};

// A property and the value that is written to it, of any type.
struct WrittenProperty {
    template <class T>
    WrittenProperty(std::string_view property, const T& written)
        : name(property), value(&written), visit([](PropertyVisitor& visitor, const WrittenProperty& self) {
              visitor.Visit(self.name, *static_cast<const T*>(self.value));
          })
    {
    }

    std::string_view name;
    const void* value;
    void (*visit)(PropertyVisitor& visitor, const WrittenProperty& self);
};

} // namespace quor
