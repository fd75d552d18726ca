#pragma once
// A record told once for all who walk it: writers, readers, printers.
//
// A class says its fields in record order in one procedure, `Fields(FieldWalk& record)`; the C++ type of a field is its
// record type. What the walk does with a field is the business of its derived class.

#include "base/property.h"
#include "base/values.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace quor {

class FieldWalk {
public:
    virtual ~FieldWalk() = default;

    // Properties, and parts that have Fields and a name of their own.
    template <class... Fields> void operator()(Fields&... fields) { (One(fields), ...); }

    // A 32-bit number that takes one byte in the record.
    template <class Field> void AsByte(Field& field) { ByteField(Field::name, PropertyAccess::Value(field)); }

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

private:
    template <class F> void One(F& field)
    {
        if constexpr (requires { field.Fields(*this); }) {
            Begin(F::name);
            field.Fields(*this);
            End();
        } else {
            Field(F::name, PropertyAccess::Value(field));
        }
    }
};

} // namespace quor
