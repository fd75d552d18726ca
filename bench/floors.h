#pragma once
// What the cases are measured against: the bare file operations and Qt's own loader of forms.

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <string>

class QWidget;

namespace quor::bench {

// Writes that many bytes to a new file beside the target, flushes them to disk and renames the file over the target.
void WriteFlushRename(const std::filesystem::path& target, std::size_t size);

// Writes that many bytes to a new file, reads them again and deletes the file.
void WriteReadDelete(const std::filesystem::path& path, std::size_t size);

// A form with that many check boxes, Qt's widget for one Boolean, as QUiLoader reads it.
std::string CheckBoxForm(std::int64_t boxes);

// The form's widgets, built; null if it can't be read.
std::unique_ptr<QWidget> LoadForm(const std::string& form);

} // namespace quor::bench
