#include "overlays/TSRows.h"

#include <algorithm>

const TSRow *TSRows::at(qint64 position) const
{
    return position >= 0 && position < m_rows.size() ? &m_rows.at(position) : nullptr;
}

void TSRows::insertCopy(qint64 position, qint64 copied)
{
    if (at(copied) && position >= 0)
        m_rows.insert(std::min(position, qint64(m_rows.size())), TSRow(m_rows.at(copied)));
}

void TSRows::remove(qint64 position)
{
    if (at(position))
        m_rows.removeAt(position);
}

/// Inserts a copy where it is to stand, then removes the original, which may have moved on by the insertion.
void TSRows::move(qint64 from, qint64 to)
{
    if (!at(from) || to < 0 || to > m_rows.size())
        return;
    insertCopy(to, from);
    remove(from >= to ? from + 1 : from);
}
