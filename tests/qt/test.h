#pragma once
// What the tests at the window use besides what all tests use.

#include "qt/toolkit.h"
#include "tests/test.h"

#include <QAbstractButton>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace quor {

inline void WriteFile(const QString& path, const QByteArray& bytes)
{
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << path.toStdString();
}

} // namespace quor
