#pragma once

#include "naming/TSNamePattern.h"

#include <array>
#include <QString>
#include <QStringList>

/// The five sizes that the user can set, in the order of their controls.
enum class TSSizeField { ByWidth, ByHeight, ByPercentage, FitSizeWidth, FitSizeHeight };

/// The export settings behind their controls: format, quality, way of resizing, name pattern. Every operation
/// acts at once on the session record and, but for the quality and the pattern, on the user's defaults. Main
/// thread only.
///
/// A size stands in its field and stepper as one whole number, kept from 1 to `top`. Ways of resizing share
/// the session's `outputWidth` and `outputHeight`; choosing a way is what brings its own numbers back.
class TSOutputSettings {
public:
    /// Titles in the order of the pop-ups, whose item index is what the defaults keep.
    static const QStringList &formatTitles();
    static const QStringList &resizeWayTitles();
    /// The greatest number that a size may have.
    static int top(TSSizeField field);

    TSNamePattern &namePattern() { return m_namePattern; }

    /// Brings the session and the controls to their first state, from the defaults where these keep a value.
    void initSettingsView();

    /// An index outside the titles is taken as the first.
    void formatChanged(qint64 index);
    qint64 pubFormat() const { return m_pubFormat; }
    /// The other formats keep the quality, but do not let it be changed.
    bool isQualityEnabled() const;

    /// The quality in percent; by slider or stepper, or typed.
    void qualityChanged(int percent);
    int quality() const { return m_quality; }

    void resizeWayChanged(qint64 index);
    qint64 pubResizeWay() const { return m_pubResizeWay; }

    /// A size by its stepper, or typed.
    void sizeChanged(TSSizeField field, int value);
    void sizeTyped(TSSizeField field, int value);
    /// The end of typing in a size field: the preview follows only now.
    void sizeDidEndEditing();
    int size(TSSizeField field) const { return m_sizes[size_t(field)]; }

private:
    void initResizeValue();
    void storeSize(TSSizeField field, int value);

    TSNamePattern m_namePattern;
    qint64 m_pubFormat = 0;
    qint64 m_pubResizeWay = 0;
    int m_quality = 0;
    std::array<int, 5> m_sizes{};
};
