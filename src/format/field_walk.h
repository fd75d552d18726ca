#pragma once
// A record told once for all who walk it: writers, readers, printers.
//
// A class says its fields in record order in one procedure, `Fields(FieldWalk& record)`; the C++ type of a field is its
// record type. What the walk does with a field is the business of its derived class.

#include "base/property.h"
#include "base/values.h"
#include "format/fixed_field.h"

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace quor {

// A 32-bit number that takes one byte in the record.
struct ByteField {
    std::int32_t* value;
    std::int32_t& operator*() const noexcept { return *value; }
};

// The name of the thing itself: written, never taken over by a reader.
struct NameField {
    std::string* value;
    std::string& operator*() const noexcept { return *value; }
};

// A field by its type, which is its record type: bool is 255 or 0 in 1 byte, WideFlag -1 or 0 in 2, where any non-zero
// is true; a Font is a FontRecord, a text a ZString.
using FieldRef = std::variant<bool*, WideFlag*, std::uint8_t*, std::int16_t*, std::int32_t*, float*, Color*, Font*,
                              std::string*, ByteField, NameField>;

class FieldWalk {
public:
    virtual ~FieldWalk() = default;

    // Properties, and parts that have Fields and a name of their own.
    template <class... Fields> void operator()(Fields&... fields)
    {
        if constexpr (((WidthOf<Fields>() > 0) && ...)) {
            if (Pass(fields...)) {
                return;
            }
        }
        (One(fields), ...);
    }

    template <class F> void AsByte(F& field)
    {
        std::int32_t& value = PropertyAccess::Value(field);
        if (m_next != m_end && value >= 0 && value <= 255) {
            *m_next++ = static_cast<std::uint8_t>(value);
        } else if (m_position < m_payload.size()) {
            value = m_payload[m_position++];
        } else {
            Field(F::name, ByteField{&value});
        }
    }

    template <class F> void OwnName(F& field) { Field(F::name, NameField{&PropertyAccess::Value(field)}); }

protected:
    virtual void Field(std::string_view name, FieldRef field) = 0;
    virtual void Begin(std::string_view /*part*/) {}
    virtual void End() {}

    // A walk that writes records has room for bytes, one that reads them has bytes: fields of fixed width go there and
    // come from there without a call, as long as there is enough. All others have none.
    std::uint8_t* m_next = nullptr;
    std::uint8_t* m_end = nullptr;
    std::span<const std::uint8_t> m_payload;
    std::size_t m_position = 0; // of the next field; may lie behind the end

private:
    template <class F> static consteval std::size_t WidthOf()
    {
        if constexpr (requires { typename F::Value; }) {
            return fixedWidth<typename F::Value>;
        }
        return 0;
    }

    template <class... F> bool Pass(F&... fields)
    {
        constexpr std::size_t width = (WidthOf<F>() + ...);
        if (static_cast<std::size_t>(m_end - m_next) >= width) {
            std::uint8_t* next = m_next;
            ((PutFixed(next, PropertyAccess::Value(fields)), next += WidthOf<F>()), ...);
            m_next = next;
        } else if (m_payload.size() >= width && m_position <= m_payload.size() - width) {
            const std::uint8_t* next = m_payload.data() + m_position;
            ((TakeFixed(next, PropertyAccess::Value(fields)), next += WidthOf<F>()), ...);
            m_position += width;
        } else {
            return false;
        }
        return true;
    }

    template <class F> void One(F& field)
    {
        if constexpr (requires { field.Fields(*this); }) {
            Begin(F::name);
            field.Fields(*this);
            End();
        } else if constexpr (WidthOf<F>() > 0) {
            if (!Pass(field)) {
                Field(F::name, &PropertyAccess::Value(field));
            }
        } else {
            Field(F::name, &PropertyAccess::Value(field));
        }
    }
};

} // namespace quor
