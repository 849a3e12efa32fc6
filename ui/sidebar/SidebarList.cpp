#include "ui/sidebar/SidebarList.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "core/language/Texts.h"
#include "ui/controls/scrolling/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/SidebarDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr int restInterval = 100;  // milliseconds for which the rows have to stand still to count as looked at

bool isPlainText(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

// 0 to 5; -1 for any other key.
int starsIn(const QKeyEvent& event)
{
    const bool isDigit = event.key() >= Qt::Key_0 && event.key() <= Qt::Key_5;
    return isDigit && isPlainText(event) ? event.key() - Qt::Key_0 : -1;
}

bool isToggle(const QKeyEvent& event)
{
    return event.key() == Qt::Key_Space || event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

}  // namespace

SidebarList::SidebarList(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : GroupedListView(parent)
    , m_model(model)
    , m_thumbs(thumbs)
    , m_rows(*new SidebarModel(model, this))
{
    setRows(m_rows.rows());
    setModel(&m_rows);
    setItemDelegate(new SidebarDelegate(m_rows, thumbs, this));
    setAccessibleName(Texts::tr("Photos"));
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    OverlayScrollBar::attach(this);
    onRestyle(this, [this] {
        QPalette colors = paletteFor(Theme::of(this));
        colors.setColor(QPalette::Base, Theme::of(this).bg);
        setPalette(colors);
        verticalScrollBar()->setSingleStep(SidebarDelegate::pitch() / 2);
        scheduleDelayedItemsLayout();
    });

    m_thumbnailsSoon.setSingleShot(true);
    connect(&m_thumbnailsSoon, &QTimer::timeout, this, &SidebarList::requestThumbnails);
    m_inViewSoon.setSingleShot(true);
    connect(&m_inViewSoon, &QTimer::timeout, this, &SidebarList::tellInView);
    connect(&model, &AppModel::photosOpened, this, [this] {
        m_hasToldInView = false;
        followScreen();
    });
    connect(&m_thumbnailsSoon, &QTimer::timeout, this, &SidebarList::rememberPlace);
    connect(&m_rows, &QAbstractItemModel::modelReset, this, &SidebarList::showReset);
    connect(&m_rows, &QAbstractItemModel::rowsInserted, this, &SidebarList::showSelection);
    connect(&m_rows, &QAbstractItemModel::rowsRemoved, this, &SidebarList::showSelection);
    connect(&model, &AppModel::selectionChanged, this, &SidebarList::showSelection);
    connect(&model, &AppModel::primaryChanged, this, &SidebarList::showPrimary);
    if (thumbs)
        connect(thumbs, &ThumbnailStore::entryChanged, this, [this](const QUrl& url) { repaintThumbnail(url); });
    showSelection();
    showPrimary();
}

// --- What is shown selected ---

void SidebarList::showSelection()
{
    selectionModel()->select(selectedRanges(), QItemSelectionModel::ClearAndSelect);
    showCursor();
    followScreen();
}

void SidebarList::showPrimary()
{
    const int row = m_model.primary() ? m_rows.row(*m_model.primary()) : -1;
    if (row >= 0)
        goTo(row);
}

SidebarList::Place SidebarList::placeNow() const
{
    return { .folder = m_model.folderURL(),
        .search = m_model.search(),
        .order = m_model.sortOrder(),
        .filter = m_model.filtering().filter() };
}

// Which photo is seen first, and where.
void SidebarList::rememberPlace()
{
    m_place = placeNow();
    const auto [first, last] = rowsOnScreen();
    for (int row = first; row <= last && m_place.photo.isEmpty(); ++row)
        if (const ImageRecord* photo = m_rows.record(row); photo && topOf(row) >= 0) {
            m_place.photo = photo->url;
            m_place.y = topOf(row);
        }
}

// Photos that came or went leave those on screen where they are; another search or order leads to where the keyboard
// is.
void SidebarList::showReset()
{
    const Place now = placeNow();
    const bool isSameList = now.folder == m_place.folder && now.search == m_place.search && now.order == m_place.order
        && now.filter == m_place.filter;
    setAutoScroll(!isSameList);
    showSelection();
    setAutoScroll(true);
    const int row = isSameList && verticalOffset() > 0 ? m_rows.row(m_place.photo) : -1;
    if (row >= 0)
        scrollRowTo(row, m_place.y);
}

// On the heading where it was, or on the primary photo, or on the heading that this is folded under.
void SidebarList::showCursor()
{
    const int group = m_heading.isEmpty() ? -1 : rows().groupOfFolder(m_heading);
    int row = group < 0 ? -1 : rows().rowOfHeading(group);
    if (row < 0 && m_model.primary())
        row = m_rows.rowOrHeading(*m_model.primary());
    if (row >= 0)
        selectionModel()->setCurrentIndex(m_rows.index(row), QItemSelectionModel::NoUpdate);
}

// Puts the keyboard there, and nothing else.
void SidebarList::goTo(int row)
{
    const FolderGroup* group = m_rows.heading(row);
    m_heading = group ? group->folder : QUrl();
    selectionModel()->setCurrentIndex(m_rows.index(row), QItemSelectionModel::NoUpdate);
    scrollTo(m_rows.index(row));
}

// The selected rows as ranges. Headings between two of them belong to a range, or there would be one for each folder.
QItemSelection SidebarList::selectedRanges() const
{
    QList<int> selected;
    for (const int position : m_model.selectedRows())
        if (const int row = m_rows.rowOfPosition(position); row >= 0)
            selected.append(row);
    std::sort(selected.begin(), selected.end());
    QItemSelection ranges;
    for (qsizetype i = 0; i < selected.size();) {
        const int first = selected.at(i);
        int last = first;
        for (int next = first; i < selected.size() && selected.at(i) == next; ++i) {
            last = next++;
            while (m_rows.heading(next))
                ++next;
        }
        ranges.append(QItemSelectionRange(m_rows.index(first), m_rows.index(last)));
    }
    return ranges;
}

// Nothing that Qt's view does on its own changes the selection: AppModel's is the only one.
QItemSelectionModel::SelectionFlags SidebarList::selectionCommand(const QModelIndex&, const QEvent*) const
{
    return QItemSelectionModel::NoUpdate;
}

void SidebarList::choose(int row, bool shift, bool command)
{
    const ImageRecord* photo = m_rows.record(row);
    if (!photo)
        return;
    const QUrl url = photo->url;  // a copy: the records may change under the call
    m_heading.clear();
    m_model.tap(url, shift, command);
    if (m_model.primary() == url)
        showPrimary();  // the keyboard may have been elsewhere
}

// --- Keyboard ---

void SidebarList::takeKeyboard()
{
    setFocus(Qt::TabFocusReason);
    int row = m_model.primary() ? m_rows.rowOrHeading(*m_model.primary()) : -1;
    const bool isShown = row >= 0;
    if (!isShown)
        row = stop(0, 1, false);
    if (isShown || m_rows.heading(row))
        goTo(row);
    else
        choose(row, false, false);
}

void SidebarList::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    m_byKeyboard =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    GroupedListView::focusInEvent(event);
}

void SidebarList::initViewItemOption(QStyleOptionViewItem* option) const
{
    GroupedListView::initViewItemOption(option);
    option->state.setFlag(QStyle::State_KeyboardFocusChange, m_byKeyboard);
}

// Whether the current row has to show that the keyboard is on it.
void SidebarList::setByKeyboard(bool on)
{
    if (on == std::exchange(m_byKeyboard, on))
        return;
    update(currentIndex());
}

void SidebarList::keyPressEvent(QKeyEvent* event)
{
    setByKeyboard(true);
    if (event->matches(QKeySequence::SelectAll)) {
        m_model.selectAllPhotos();
    } else if (moveCursor(*event) || moveAcross(*event)) {
    } else if (m_rows.heading(currentIndex().row()) && isToggle(*event) && !isTyping()) {
        const int row = currentIndex().row();
        setFolded(row, !m_rows.heading(row)->isFolded, event->modifiers() & Qt::AltModifier);
    } else if (event->key() == Qt::Key_Space && !isTyping()) {
        const bool isToggled = event->modifiers() & Qt::ControlModifier;
        const ImageRecord* photo = m_rows.record(currentIndex().row());
        if (isToggled || (photo && photo->url != m_model.primary()))
            choose(currentIndex().row(), false, isToggled);
        if (photo && !isToggled)
            emit lookAsked();
    } else if (const int stars = starsIn(*event); stars >= 0 && !isTyping()) {
        m_model.rate(stars);
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        if (const ImageRecord* photo = m_rows.record(currentIndex().row()))
            m_model.openFile(QUrl(photo->url));
    } else if (isPlainText(*event)) {
        keyboardSearch(event->text());
    } else {
        event->ignore();
        return;
    }
    event->accept();
}

// The first row from `row` on where the keyboard stops: a photo, or a folded heading; -1 where there is none.
int SidebarList::stop(int row, int step, bool photosOnly) const
{
    for (; row >= 0 && row < m_rows.rowCount(); row += step) {
        const FolderGroup* group = m_rows.heading(row);
        if (!group || (group->isFolded && !photosOnly))
            return row;
    }
    return -1;
}

// Where a key leads to from `row`, which may be nowhere (-1); nothing when it is no key of movement.
std::optional<int> SidebarList::rowAfter(int key, int row, bool photosOnly) const
{
    const auto turn = [&](int page) {
        const int step = page < 0 ? -1 : 1;
        const int y = rows().top(qMax(0, row), SidebarDelegate::pitches()) + page * SidebarDelegate::pitch();
        const int target = rows().rowAt(y, SidebarDelegate::pitches());
        const int found = stop(target, step, photosOnly);
        return found >= 0 ? found : stop(target, -step, photosOnly);
    };
    const int page = qMax(1, viewport()->height() / SidebarDelegate::pitch() - 1);
    switch (key) {
    case Qt::Key_Up:
        return stop(row - 1, -1, photosOnly);
    case Qt::Key_Down:
        return stop(row + 1, 1, photosOnly);
    case Qt::Key_PageUp:
        return turn(-page);
    case Qt::Key_PageDown:
        return turn(page);
    case Qt::Key_Home:
        return stop(0, 1, photosOnly);
    case Qt::Key_End:
        return stop(m_rows.rowCount() - 1, -1, photosOnly);
    default:
        return std::nullopt;
    }
}

bool SidebarList::moveCursor(const QKeyEvent& event)
{
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    const std::optional<int> found = rowAfter(event.key(), currentIndex().row(), shift);
    if (!found)
        return false;
    m_typed.clear();
    const int row = *found >= 0 ? *found : currentIndex().row();
    if (m_rows.heading(row) || (event.modifiers() & Qt::ControlModifier && !shift))
        goTo(row);
    else
        choose(row, shift, false);
    return true;
}

// Left and Right, where there are headings: as in a tree. With Alt they fold and unfold all.
bool SidebarList::moveAcross(const QKeyEvent& event)
{
    const bool isLeft = event.key() == (isRightToLeft() ? Qt::Key_Right : Qt::Key_Left);
    const int row = currentIndex().row();
    const int group = rows().groupAt(row);
    if ((event.key() != Qt::Key_Left && event.key() != Qt::Key_Right) || group < 0)
        return false;
    m_typed.clear();
    const int heading = rows().rowOfHeading(group);
    const bool isFolded = rows().groups().at(group).isFolded;
    if (event.modifiers() & Qt::AltModifier)
        setFolded(heading, isLeft, true);
    else if (isLeft && row != heading)
        goTo(heading);
    else if (row == heading && isLeft != isFolded)
        setFolded(heading, isLeft, false);
    else if (row == heading && !isLeft)
        choose(row + 1, false, false);
    return true;
}

// The heading stays where it is seen.
void SidebarList::setFolded(int heading, bool on, bool all)
{
    const QUrl folder = m_rows.heading(heading)->folder;
    const int y = qBound(0, topOf(heading), viewport()->height() - SidebarDelegate::headingHeight());
    setAutoScroll(false);
    if (all)
        m_model.setAllFolded(on);
    else
        m_model.setFolded(folder, on);
    setAutoScroll(true);
    if (const int group = rows().groupOfFolder(folder); group >= 0)
        scrollRowTo(rows().rowOfHeading(group), y);
    if (m_rows.heading(currentIndex().row()))
        tellReaders(QAccessible::NameChanged, currentIndex());
}

// Whether the next letter belongs to the name being typed.
bool SidebarList::isTyping() const
{
    return !m_typed.isEmpty() && m_sinceTyped.elapsed() <= QApplication::keyboardInputInterval();
}

// Goes to the next photo whose name begins with what was typed; one letter again and again goes through all of them.
void SidebarList::keyboardSearch(const QString& text)
{
    if (!isTyping())
        m_typed.clear();
    m_sinceTyped.start();
    m_typed += text;
    const bool sameLetter = m_typed.count(m_typed.at(0), Qt::CaseInsensitive) == m_typed.size();
    const QString prefix = sameLetter ? m_typed.left(1) : m_typed;
    const int count = m_rows.rowCount();
    const int start = qMax(0, currentIndex().row()) + (sameLetter ? 1 : 0);
    for (int step = 0; step < count; ++step) {
        const int row = (start + step) % count;
        const ImageRecord* photo = m_rows.record(row);
        if (photo && photo->fileName.startsWith(prefix, Qt::CaseInsensitive)) {
            choose(row, false, false);
            return;
        }
    }
}

// --- Mouse ---

void SidebarList::mousePressEvent(QMouseEvent* event)
{
    setByKeyboard(false);
    if (event->button() != Qt::LeftButton)
        return;
    const int row = indexAt(event->position().toPoint()).row();
    if (const FolderGroup* group = m_rows.heading(row))
        setFolded(row, !group->isFolded, event->modifiers() & Qt::AltModifier);
    else
        choose(row, event->modifiers() & Qt::ShiftModifier, event->modifiers() & Qt::ControlModifier);
}

// Neither moving with a pressed button nor letting it go means anything here.
void SidebarList::mouseMoveEvent(QMouseEvent* event)
{
    event->accept();
}

void SidebarList::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept();
}

// Opens the photo; the selection was made by the first of the two clicks.
void SidebarList::mouseDoubleClickEvent(QMouseEvent* event)
{
    const ImageRecord* photo = m_rows.record(indexAt(event->position().toPoint()).row());
    if (photo && event->button() == Qt::LeftButton)
        m_model.openFile(QUrl(photo->url));
}

// --- The rows on screen ---

void SidebarList::resizeEvent(QResizeEvent* event)
{
    GroupedListView::resizeEvent(event);
    followScreen();
}

void SidebarList::scrollContentsBy(int dx, int dy)
{
    GroupedListView::scrollContentsBy(dx, dy);
    followScreen();
}

void SidebarList::updateGeometries()
{
    GroupedListView::updateGeometries();
    followScreen();
}

// Other rows may be on screen now.
void SidebarList::followScreen()
{
    m_thumbnailsSoon.start(0);
    // The first ones at once; then those that one stops at, not all that run past.
    m_inViewSoon.start(m_hasToldInView ? restInterval : 0);
}

void SidebarList::tellInView()
{
    if (!isVisible())
        return;
    m_hasToldInView = true;
    QList<QUrl> urls;
    const auto [first, last] = rowsOnScreen();
    for (int row = first; row <= last; ++row)
        if (const ImageRecord* photo = m_rows.record(row))
            urls.append(photo->url);
    m_model.setInView(urls);
}

void SidebarList::requestThumbnails()
{
    if (!m_thumbs || !isVisible())
        return;
    QList<QUrl> urls;
    QList<QUrl> near;
    const auto [first, last] = rowsOnScreen();
    const int screenful = last - first + 1;
    for (int row = first - screenful; row <= last + screenful; ++row)
        if (const ImageRecord* photo = m_rows.record(row))
            (row >= first && row <= last ? urls : near).append(m_rows.seenFile(*photo));
    m_thumbs->setVisible(urls, near);
    // The newest request is served first: ask from the bottom, so that the list fills from the top.
    std::for_each(
        urls.crbegin(), urls.crend(), [this](const QUrl& url) { m_thumbs->request(url, ThumbnailStore::Kind::small); });
}

void SidebarList::repaintThumbnail(const QUrl& url)
{
    const auto [first, last] = rowsOnScreen();
    for (int row = first; row <= last; ++row)
        if (const ImageRecord* photo = m_rows.record(row); photo && m_rows.seenFile(*photo) == url) {
            update(m_rows.index(row));
            if (m_thumbs->entry(url, ThumbnailStore::Kind::small).state == ThumbnailStore::State::none)
                m_thumbnailsSoon.start(0);  // forgotten: asked for again
        }
}

}  // namespace Quorbel
