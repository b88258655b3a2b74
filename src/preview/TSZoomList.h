#pragma once

#include <array>
#include <QString>
#include <QStringList>

/// The list of zooms and the menu that repeats it: titles and check marks. Item 0 is hidden and holds the
/// percentage in force; then come "Fit", a separator, which has no title, and the fixed zooms.
class TSZoomList {
public:
    TSZoomList();

    static QString fitTitle();

    const QStringList &itemTitles() const { return m_itemTitles; }
    /// What the closed list shows.
    const QString &title() const { return m_title; }
    bool isFitMarked() const { return m_isFitMarked; }
    void setFitMarked(bool isMarked) { m_isFitMarked = isMarked; }
    /// The check marks of the menu, whose entries stand in an order of their own.
    const std::array<bool, 11> &menuItems() const { return m_menuItems; }
    void unmarkMenuItems() { m_menuItems.fill(false); }

    /// Points a pixel, shown in percent, cut to a whole number.
    void showPercentage(double photoRatioOfSize);
    /// Chosen from the list. The mark in the menu goes by the title's first position in the list, so that a
    /// title that item 0 happens to hold too counts as item 0 and marks the last entry.
    void selectTitle(const QString &title);
    /// Chosen from the menu.
    void selectMenuItem(size_t menuItem, const QString &title);

private:
    QStringList m_itemTitles;
    QString m_title;
    bool m_isFitMarked = true;
    std::array<bool, 11> m_menuItems{};
};
