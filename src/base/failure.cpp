#include "base/failure.h"

#include <new>
#include <utility>

namespace quor {

namespace {

struct Words {
    std::int32_t number;
    std::string_view text;
};

constexpr Words usualWords[] = {
    {failures::invalidCall, "Invalid procedure call or argument"},
    {failures::overflow, "Overflow"},
    {failures::outOfMemory, "Out of memory"},
    {failures::outOfRange, "Subscript out of range"},
    {failures::divisionByZero, "Division by zero"},
    {failures::typeMismatch, "Type mismatch"},
    {failures::internal, "Internal error"},
    {failures::fileNotFound, "File not found"},
    {failures::permissionDenied, "Permission denied"},
    {failures::pathFileAccess, "Path/File access error"},
    {failures::pathNotFound, "Path not found"},
    {failures::objectNotSet, "Object variable not set"},
    {failures::invalidPropertyValue, "Invalid property value"},
    {failures::keyInUse, "This key is already in use"},
    {failures::invalidPicture, "Invalid picture"},
};

} // namespace

std::string_view DescriptionOf(std::int32_t number) noexcept
{
    for (const Words& words : usualWords) {
        if (words.number == number) {
            return words.text;
        }
    }
    return "Application-defined error";
}

Failure::Failure(std::int32_t number, std::string description, std::string source)
    : m_number(number), m_source(std::move(source)), m_description(std::move(description))
{
    if (m_description.empty()) {
        m_description = DescriptionOf(number);
    }
}

Failure CurrentFailure()
{
    try {
        throw;
    } catch (const Failure& failure) {
        return failure;
    } catch (const std::bad_alloc&) {
        return Failure(failures::outOfMemory);
    } catch (const std::exception& error) {
        return Failure(failures::internal, error.what());
    } catch (...) {
        return Failure(failures::internal);
    }
}

} // namespace quor
