#include "preview/TSZoomList.h"

#include <QCoreApplication>

TSZoomList::TSZoomList()
    : m_itemTitles({QString(), fitTitle(), QString(), QStringLiteral("25%"), QStringLiteral("50%"),
                    QStringLiteral("75%"), QStringLiteral("100%"), QStringLiteral("125%"),
                    QStringLiteral("150%"), QStringLiteral("200%"), QStringLiteral("300%"),
                    QStringLiteral("400%")})
    , m_title(fitTitle())
{
}

QString TSZoomList::fitTitle()
{
    return qtTrId("Fit");
}

void TSZoomList::showPercentage(double photoRatioOfSize)
{
    m_title = QStringLiteral("%1%").arg(qint64(photoRatioOfSize * 100));
    m_itemTitles[0] = m_title;
}

void TSZoomList::selectTitle(const QString &title)
{
    unmarkMenuItems();
    m_title = title;
    const qsizetype position = m_itemTitles.indexOf(title);
    if (position == 0)
        m_menuItems.back() = true;
    else if (position > 0 && size_t(position - 1) < m_menuItems.size())
        m_menuItems[size_t(position - 1)] = true;
}

void TSZoomList::selectMenuItem(size_t menuItem, const QString &title)
{
    unmarkMenuItems();
    m_title = title;
    if (menuItem < m_menuItems.size())
        m_menuItems[menuItem] = true;
}
