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
#include <string>
#include <string_view>

namespace quor {

class FieldWalk {
public:
    virtual ~FieldWalk() = default;

    // Properties, and parts that have Fields and a name of their own.
    template <class... Fields> void operator()(Fields&... fields)
    {
        if constexpr (((WidthOf<Fields>() > 0) && ...)) {
            if (PutAll(fields...)) {
                return;
            }
        }
        (One(fields), ...);
    }

    // A 32-bit number that takes one byte in the record.
    template <class Field> void AsByte(Field& field)
    {
        std::int32_t& value = PropertyAccess::Value(field);
        if (m_next != m_end && value >= 0 && value <= 255) {
            *m_next++ = static_cast<std::uint8_t>(value);
        } else {
            ByteField(Field::name, value);
        }
    }

    // The name of the thing itself: written, never taken over by a reader.
    template <class Field> void OwnName(Field& field) { NameField(Field::name, PropertyAccess::Value(field)); }

protected:
    virtual void Field(std::string_view name, bool& value) = 0;         // 1 byte: 255 or 0, any non-zero is true
    virtual void Field(std::string_view name, WideFlag& value) = 0;     // 2 bytes: -1 or 0, any non-zero is true
    virtual void Field(std::string_view name, std::uint8_t& value) = 0; // 1 byte
    virtual void Field(std::string_view name, std::int16_t& value) = 0; // 2 bytes
    virtual void Field(std::string_view name, std::int32_t& value) = 0; // 4 bytes
    virtual void Field(std::string_view name, float& value) = 0;        // 4 bytes
    virtual void Field(std::string_view name, Color& value) = 0;        // 4 bytes
    virtual void Field(std::string_view name, Font& value) = 0;         // a FontRecord
    virtual void Field(std::string_view name, std::string& value) = 0;  // a ZString
    virtual void ByteField(std::string_view name, std::int32_t& value) = 0;
    virtual void NameField(std::string_view name, std::string& value) = 0;
    virtual void Begin(std::string_view part) = 0;
    virtual void End() = 0;

    // Room for bytes. A walk that writes records has some: fields of fixed width go there without a call, as long as
    // there is enough. All others have none.
    std::uint8_t* m_next = nullptr;
    std::uint8_t* m_end = nullptr;

private:
    template <class F> static consteval std::size_t WidthOf()
    {
        if constexpr (requires { typename F::Value; }) {
            return fixedWidth<typename F::Value>;
        }
        return 0;
    }

    template <class... F> bool PutAll(F&... fields)
    {
        constexpr std::size_t width = (WidthOf<F>() + ...);
        std::uint8_t* next = m_next;
        if (static_cast<std::size_t>(m_end - next) < width) {
            return false;
        }
        ((PutFixed(next, PropertyAccess::Value(fields)), next += WidthOf<F>()), ...);
        m_next = next;
        return true;
    }

    template <class F> void One(F& field)
    {
        if constexpr (requires { field.Fields(*this); }) {
            Begin(F::name);
            field.Fields(*this);
            End();
        } else if constexpr (WidthOf<F>() > 0) {
            if (!PutAll(field)) {
                Field(F::name, PropertyAccess::Value(field));
            }
        } else {
            Field(F::name, PropertyAccess::Value(field));
        }
    }
};

} // namespace quor
