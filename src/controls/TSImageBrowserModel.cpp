#include "controls/TSImageBrowserModel.h"

#include "controls/TSImageBrowserDataSource.h"
#include "controls/TSImageBrowserMimeData.h"

#include <QUrl>

void TSImageBrowserModel::setSource(TSImageBrowserDataSource *source)
{
    m_source = source;
    reload();
}

void TSImageBrowserModel::reload()
{
    beginResetModel();
    m_count = m_source ? m_source->numberOfItemsInImageBrowser() : 0;
    endResetModel();
}

int TSImageBrowserModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : m_count;
}

QVariant TSImageBrowserModel::data(const QModelIndex &index, int role) const
{
    // The source may have shrunk since the last count.
    if (!m_source || !index.isValid() || index.row() >= m_source->numberOfItemsInImageBrowser())
        return {};
    if (role == Qt::DisplayRole)
        return m_source->imageTitle(index.row());
    if (role == Qt::ToolTipRole && m_isTip)
        return m_source->imageDescription(index.row());
    return {};
}

Qt::ItemFlags TSImageBrowserModel::flags(const QModelIndex &index) const
{
    const Qt::ItemFlags item = QAbstractListModel::flags(index);
    return index.isValid() ? item | Qt::ItemIsDragEnabled | Qt::ItemNeverHasChildren
                           : item | Qt::ItemIsDropEnabled;
}

QMimeData *TSImageBrowserModel::mimeData(const QModelIndexList &indexes) const
{
    if (indexes.isEmpty() || !m_source)
        return nullptr;
    auto *data = new TSImageBrowserMimeData(this, indexes.first().row());
    const QString path = m_source->resourcePath(data->index);
    if (!path.isEmpty())
        data->setUrls({QUrl::fromLocalFile(path)});
    return data;
}
