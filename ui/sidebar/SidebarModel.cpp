#include "ui/sidebar/SidebarModel.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "core/language/Texts.h"
#include "ui/sidebar/FolderHeading.h"

namespace Quorbel {

using namespace Qt::StringLiterals;

SidebarModel::SidebarModel(AppModel& model, QObject* parent)
    : QAbstractListModel(parent)
    , m_model(model)
    , m_shown(model.visibleRows())
    , m_rows(model.folderGroups(), m_shown.size())
{
    connect(&model, &AppModel::recordsChanged, this, &SidebarModel::sync);
    connect(&model, &AppModel::visibleRowsChanged, this, &SidebarModel::sync);
    connect(&model, &AppModel::folderGroupsChanged, this, &SidebarModel::sync);
}

int SidebarModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_rows.count();
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const
{
    if (const FolderGroup* group = heading(index.row()))
        return FolderHeading::data(*group, role);
    const ImageRecord* photo = record(index.row());
    if (!photo)
        return {};
    switch (role) {
    case Qt::DisplayRole:
        return photo->fileName;
    case Qt::AccessibleTextRole:
        return m_model.pairing().names(*photo);
    case Qt::AccessibleDescriptionRole:
        return line(*photo);
    case Qt::ToolTipRole:
        return toolTip(*photo);
    default:
        return {};
    }
}

QString SidebarModel::toolTip(const ImageRecord& photo) const
{
    const QString hint = Texts::tr("Double-click to open in your default image app");
    return m_model.pairing().pictureOf(photo.url) ? m_model.pairing().names(photo) + u'\n' + hint : hint;
}

QUrl SidebarModel::seenFile(const ImageRecord& photo) const
{
    return m_model.pairing().seenFile(photo.url);
}

QString SidebarModel::line(const ImageRecord& photo) const
{
    return m_model.pairing().sidebarLine(photo);
}

// A range that is selected runs past the headings in it, which are not selected with it.
Qt::ItemFlags SidebarModel::flags(const QModelIndex& index) const
{
    return heading(index.row()) ? Qt::ItemIsEnabled : QAbstractListModel::flags(index);
}

const FolderGroup* SidebarModel::heading(int row) const
{
    const int group = m_rows.headingAt(row);
    return group < 0 ? nullptr : &m_rows.groups().at(group);
}

const ImageRecord* SidebarModel::record(int row) const
{
    const qsizetype shown = m_rows.photoAt(row);
    if (shown < 0 || shown >= m_shown.size())
        return nullptr;
    const int position = m_shown.at(shown);
    return position < m_model.records().size() ? &m_model.records().at(position) : nullptr;
}

qsizetype SidebarModel::shownAt(int position) const
{
    if (m_shownAt.isEmpty()) {
        m_shownAt.fill(-1, m_model.records().size());
        for (int i = 0; i < m_shown.size(); ++i)
            if (m_shown.at(i) < m_shownAt.size())
                m_shownAt[m_shown.at(i)] = i;
    }
    return m_shownAt.value(position, -1);
}

int SidebarModel::rowOfPosition(int position) const
{
    const qsizetype shown = shownAt(position);
    return shown < 0 ? -1 : m_rows.rowOfPhoto(shown);
}

int SidebarModel::row(const QUrl& url) const
{
    const ImageRecord* photo = m_model.record(url);
    return photo ? rowOfPosition(int(photo - m_model.records().constData())) : -1;
}

int SidebarModel::rowOrHeading(const QUrl& url) const
{
    if (const int shown = row(url); shown >= 0)
        return shown;
    const ImageRecord* photo = m_model.record(url);
    const qsizetype folded = photo ? shownAt(int(photo - m_model.records().constData())) : -1;
    const int group = folded < 0 ? -1 : m_rows.groupOfPhoto(folded);
    return group < 0 ? -1 : m_rows.rowOfHeading(group);
}

// The records, the rows and the groups change one after the other; whichever is announced first, the list is rebuilt
// from what holds now, and only when rows came, went or moved. A re-read of some photos repaints what is on screen.
void SidebarModel::sync()
{
    const QList<int>& shown = m_model.visibleRows();
    const QList<FolderGroup>& groups = m_model.folderGroups();
    const bool areSamePhotos = shown == m_shown;
    if (areSamePhotos && groups == m_rows.groups()) {
        m_shownAt.clear();  // the same positions may hold other photos now
        if (rowCount() > 0)
            emit dataChanged(index(0), index(rowCount() - 1));
    } else if (const int group = areSamePhotos ? groupThatFolded(groups) : -1; group >= 0) {
        fold(group, GroupedRows(groups, shown.size()));
    } else {
        beginResetModel();
        m_shown = shown;
        m_rows = GroupedRows(groups, shown.size());
        m_shownAt.clear();
        endResetModel();
    }
}

// The one group that is folded now and was not, or the other way round; -1 when there is more to it.
int SidebarModel::groupThatFolded(const QList<FolderGroup>& groups) const
{
    const QList<FolderGroup>& before = m_rows.groups();
    if (groups.size() != before.size())
        return -1;
    int found = -1;
    for (int i = 0; i < groups.size(); ++i) {
        if (groups.at(i) == before.at(i))
            continue;
        FolderGroup other = before.at(i);
        other.isFolded = !other.isFolded;
        if (found >= 0 || other != groups.at(i))
            return -1;
        found = i;
    }
    return found;
}

void SidebarModel::fold(int group, GroupedRows rows)
{
    const int heading = m_rows.rowOfHeading(group);
    const int last = heading + int(m_rows.groups().at(group).count);
    if (rows.groups().at(group).isFolded) {
        beginRemoveRows({}, heading + 1, last);
        m_rows = std::move(rows);
        endRemoveRows();
    } else {
        beginInsertRows({}, heading + 1, last);
        m_rows = std::move(rows);
        endInsertRows();
    }
    emit dataChanged(index(heading), index(heading));
}

}  // namespace Quorbel
