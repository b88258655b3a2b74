#pragma once

#include "overlays/TSRow.h"

#include <QList>

/// One row a photo, in step with the photo list. A copy shares the rows until either changes. Rows can be
/// missing, when photos have left behind the overlays' back: rows that are not there are neither copied nor
/// changed, and a new one is put behind the last at most.
class TSRows {
public:
    bool isEmpty() const { return m_rows.isEmpty(); }
    qint64 count() const { return m_rows.size(); }
    /// Nothing for a row that is missing.
    const TSRow *at(qint64 position) const;

    void append(const TSRow &row) { m_rows.append(row); }
    /// A copy of a row comes to stand at a position.
    void insertCopy(qint64 position, qint64 copied);
    void remove(qint64 position);
    /// Before the row that stood at `to`, counted before the move.
    void move(qint64 from, qint64 to);
    /// Changes a row; a change is something that is called with a `TSRow &`.
    template <typename Change>
    void change(qint64 position, const Change &apply)
    {
        if (at(position))
            apply(m_rows[position]);
    }
    template <typename Change>
    void changeAll(const Change &apply)
    {
        for (TSRow &row : m_rows)
            apply(row);
    }

private:
    QList<TSRow> m_rows;
};
