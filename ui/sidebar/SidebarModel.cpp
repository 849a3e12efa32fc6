#include "ui/sidebar/SidebarModel.h"

#include "app/model/AppModel.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

SidebarModel::SidebarModel(AppModel& model, QObject* parent)
    : QAbstractListModel(parent)
    , m_model(model)
    , m_rows(model.visibleRows())
{
    connect(&model, &AppModel::recordsChanged, this, &SidebarModel::sync);
    connect(&model, &AppModel::visibleRowsChanged, this, &SidebarModel::sync);
}

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    const ImageRecord* photo = record(index.row());
    if (!photo)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return photo->fileName;
    case Qt::AccessibleTextRole:
        return photo->fileName;
    case Qt::AccessibleDescriptionRole:
        return photo->sidebarLine();
    case Qt::ToolTipRole:
        return u"Double-click to open in your default image app"_s;
    default:
        return {};
    }
}

const ImageRecord* SidebarModel::record(int row) const
{
    if (row < 0 || row >= m_rows.size())
        return nullptr;
    const int position = m_rows.at(row);
    return position < m_model.records().size() ? &m_model.records().at(position) : nullptr;
}

int SidebarModel::row(const QUrl& url) const
{
    const QList<ImageRecord>& records = m_model.records();
    const ImageRecord* photo = m_model.record(url);
    if (!photo)
        return -1;
    if (m_rowOf.isEmpty()) {
        m_rowOf.fill(-1, records.size());
        for (int i = 0; i < m_rows.size(); ++i)
            if (m_rows.at(i) < m_rowOf.size())
                m_rowOf[m_rows.at(i)] = i;
    }
    return m_rowOf.value(photo - records.constData(), -1);
}

// The records and the rows change one after the other; whichever is announced first, the list is rebuilt from what
// holds now, and only when rows came, went or moved. A re-read of some photos repaints what is on screen.
void SidebarModel::sync()
{
    const QList<int>& rows = m_model.visibleRows();
    if (rows != m_rows) {
        beginResetModel();
        m_rows = rows;
        m_rowOf.clear();
        endResetModel();
    } else if (!m_rows.isEmpty()) {
        m_rowOf.clear();  // the same positions may hold other photos now
        emit dataChanged(index(0), index(rowCount() - 1));
    }
}

}  // namespace Quorbel
