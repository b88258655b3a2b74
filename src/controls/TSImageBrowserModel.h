#pragma once

#include <QAbstractListModel>

class TSImageBrowserDataSource;

/// A data source in the form that item views read.
class TSImageBrowserModel : public QAbstractListModel {
    Q_OBJECT

public:
    using QAbstractListModel::QAbstractListModel;

    void setSource(TSImageBrowserDataSource *source);
    TSImageBrowserDataSource *source() const { return m_source; }
    void setIsTip(bool isTip) { m_isTip = isTip; }
    /// Counts anew. Until then the view goes on with the old count, whatever the source does meanwhile.
    void reload();

    int rowCount(const QModelIndex &parent = {}) const override;
    QVariant data(const QModelIndex &index, int role) const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;

private:
    TSImageBrowserDataSource *m_source = nullptr;
    int m_count = 0;
    bool m_isTip = true;
};
