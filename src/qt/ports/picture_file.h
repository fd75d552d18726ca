#pragma once
// A file that is said to be a picture, open for reading.

#include "posix/descriptor.h"

#include <QByteArray>

#include <cstdint>
#include <string>

namespace quor {

class PictureFile {
public:
    // What tells whether a file is still as it was.
    struct Mark {
        std::int64_t seconds = 0;
        std::int64_t nanoseconds = 0;
        std::int64_t length = -1;

        friend bool operator==(const Mark&, const Mark&) = default;
    };

    // Opens nothing but a regular file, and never waits for one. Failures: 53, 70, 75, 76.
    explicit PictureFile(const std::string& path);

    const Mark& Changed() const noexcept { return m_mark; }
    int Descriptor() const noexcept { return m_descriptor.Number(); }

    // Its first bytes, as many as there are.
    QByteArray Head(std::int64_t length) const;

private:
    posix::Descriptor m_descriptor;
    Mark m_mark;
};

} // namespace quor
