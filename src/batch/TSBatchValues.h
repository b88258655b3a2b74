#pragma once

#include "batch/TSBatchOptions.h"

/// The values of options as text. Each answers nothing for what is not whole and in its range.
namespace TSBatchValues {

std::optional<double> number(const QString &text, double least, double most);
std::optional<int> wholeNumber(const QString &text, int least, int most);
std::optional<QPointF> point(const QString &text);
std::optional<unsigned> anchor(const QString &text);
std::optional<unsigned> unit(const QString &text);
std::optional<unsigned> fileType(const QString &text);
std::optional<platform::Color> color(const QString &text);
std::optional<platform::FontDescription> font(const QString &text);
std::optional<TSBatchStroke> stroke(const QString &text);
std::optional<TSBatchGlow> glow(const QString &text);
std::optional<TSBatchShadow> shadow(const QString &text);
/// Sets the way and its numbers; false, and nothing set, for what is no way to resize.
bool resize(const QString &text, TSBatchOptions &options);

} // namespace TSBatchValues
