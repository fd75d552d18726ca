#pragma once
// What nearly every file of the skin includes, precompiled once for all its libraries.

#include <QApplication>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <QStyleOption>
#include <QWidget>

#include <functional>
#include <memory>
#include <string>
#include <vector>
