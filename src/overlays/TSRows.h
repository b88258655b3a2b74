#pragma once

#include <algorithm>
#include <QtGlobal>
#include <vector>

/// What happens to the rows of one value when the photo list changes. Rows can be missing, when photos have
/// left behind the overlays' back. Rows that are not there are neither copied nor changed, and a new one is
/// put behind the last at most.

template <typename T>
bool TSHasRow(const std::vector<T> &rows, qint64 position)
{
    return position >= 0 && position < qint64(rows.size());
}

template <typename T>
void TSInsertRowCopy(std::vector<T> &rows, qint64 position, qint64 copied)
{
    if (!TSHasRow(rows, copied) || position < 0)
        return;
    const T row = rows[size_t(copied)];
    rows.insert(rows.begin() + std::min(position, qint64(rows.size())), row);
}

template <typename T>
void TSRemoveRow(std::vector<T> &rows, qint64 position)
{
    if (TSHasRow(rows, position))
        rows.erase(rows.begin() + position);
}

/// Inserts a copy where it is to stand, then removes the original, which may have moved on by the insertion.
template <typename T>
void TSMoveRow(std::vector<T> &rows, qint64 from, qint64 to)
{
    if (!TSHasRow(rows, from) || to < 0 || to > qint64(rows.size()))
        return;
    TSInsertRowCopy(rows, to, from);
    TSRemoveRow(rows, from >= to ? from + 1 : from);
}

template <typename T>
void TSStoreRow(std::vector<T> &rows, qint64 position, const T &value)
{
    if (TSHasRow(rows, position))
        rows[size_t(position)] = value;
}

template <typename T, typename Field>
void TSLoadRow(const std::vector<T> &rows, qint64 position, Field &field)
{
    if (TSHasRow(rows, position))
        field = Field(rows[size_t(position)]);
}
