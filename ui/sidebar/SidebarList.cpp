#include "ui/sidebar/SidebarList.h"

#include "app/model/AppModel.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "ui/controls/OverlayScrollBar.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Theme.h"
#include "ui/sidebar/SidebarDelegate.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr qreal inset = 6;  // points, around the rows
constexpr int restInterval = 100;  // milliseconds for which the rows have to stand still to count as looked at

bool isPlainText(const QKeyEvent& event)
{
    return !event.text().isEmpty() && event.text().at(0).isPrint()
        && !(event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
}

}  // namespace

SidebarList::SidebarList(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : QListView(parent)
    , m_model(model)
    , m_thumbs(thumbs)
    , m_rows(model)
{
    setModel(&m_rows);
    setItemDelegate(new SidebarDelegate(m_rows, thumbs, this));
    setAccessibleName(u"Photos"_s);
    setUniformItemSizes(true);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    OverlayScrollBar::attach(this);
    onRestyle(this, [this] {
        QPalette colors = paletteFor(Theme::of(this));
        colors.setColor(QPalette::Base, Theme::of(this).bg);
        setPalette(colors);
        setViewportMargins(px(inset), px(inset), 0, px(inset));
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
    connect(&m_rows, &QAbstractItemModel::modelReset, this, &SidebarList::showSelection);
    connect(&m_rows, &QAbstractItemModel::modelReset, this, [this] { setAccessibleDescription(emptyText()); });
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
    const int row = m_model.primary() ? m_rows.row(*m_model.primary()) : -1;
    if (row >= 0)
        selectionModel()->setCurrentIndex(m_rows.index(row), QItemSelectionModel::NoUpdate);
    followScreen();
}

void SidebarList::showPrimary()
{
    const int row = m_model.primary() ? m_rows.row(*m_model.primary()) : -1;
    if (row < 0)
        return;
    selectionModel()->setCurrentIndex(m_rows.index(row), QItemSelectionModel::NoUpdate);
    scrollTo(m_rows.index(row));
}

// The selected rows as ranges, in time proportional to the smaller of selection and list.
QItemSelection SidebarList::selectedRanges() const
{
    QList<int> rows;
    const QSet<QUrl>& selection = m_model.selection();
    if (selection.size() < m_rows.rowCount() / 4) {
        for (const QUrl& url : selection)
            if (const int row = m_rows.row(url); row >= 0)
                rows.append(row);
        std::sort(rows.begin(), rows.end());
    } else {
        for (int row = 0; row < m_rows.rowCount(); ++row)
            if (const ImageRecord* photo = m_rows.record(row); photo && selection.contains(photo->url))
                rows.append(row);
    }
    QItemSelection ranges;
    for (qsizetype first = 0; first < rows.size();) {
        qsizetype last = first;
        while (last + 1 < rows.size() && rows.at(last + 1) == rows.at(last) + 1)
            ++last;
        ranges.append(QItemSelectionRange(m_rows.index(rows.at(first)), m_rows.index(rows.at(last))));
        first = last + 1;
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
    if (const ImageRecord* photo = m_rows.record(row))
        m_model.tap(QUrl(photo->url), shift, command);  // a copy: the records may change under the call
}

// --- When the search has no hits ---

QString SidebarList::emptyText() const
{
    const bool missed = m_rows.rowCount() == 0 && !m_model.records().isEmpty();
    return missed ? u"No matching photos."_s : QString();
}

void SidebarList::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    const QString text = emptyText();
    if (text.isEmpty())
        return;
    QPainter painter(viewport());
    painter.setFont(sansFont(12));
    painter.setPen(Theme::of(this).derived.label);
    const QRect line(0, px(24), viewport()->width(), px(18));
    painter.drawText(line, Qt::AlignCenter | Qt::TextSingleLine, text);
}

// --- Keyboard ---

void SidebarList::takeKeyboard()
{
    setFocus(Qt::TabFocusReason);
    if (!m_model.primary() || m_rows.row(*m_model.primary()) < 0)
        choose(0, false, false);
}

void SidebarList::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    m_byKeyboard =
        reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::ShortcutFocusReason;
    QListView::focusInEvent(event);
}

void SidebarList::initViewItemOption(QStyleOptionViewItem* option) const
{
    QListView::initViewItemOption(option);
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
    } else if (moveCursor(*event)) {
    } else if (event->key() == Qt::Key_Space && !isTyping()) {
        choose(currentIndex().row(), false, event->modifiers() & Qt::ControlModifier);
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

// The row where a key leads to from `row`; -1 when it is no key of movement.
int SidebarList::rowAfter(int key, int row) const
{
    const int last = m_rows.rowCount() - 1;
    const int page = qMax(1, viewport()->height() / SidebarDelegate::pitch() - 1);
    switch (key) {
    case Qt::Key_Up:
        return qMax(0, row - 1);
    case Qt::Key_Down:
        return qMin(last, row + 1);
    case Qt::Key_PageUp:
        return qMax(0, row - page);
    case Qt::Key_PageDown:
        return qMin(last, row + page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return -1;
    }
}

bool SidebarList::moveCursor(const QKeyEvent& event)
{
    const int row = rowAfter(event.key(), currentIndex().row());
    if (row < 0)
        return false;
    m_typed.clear();
    const bool shift = event.modifiers() & Qt::ShiftModifier;
    if (event.modifiers() & Qt::ControlModifier && !shift) {
        selectionModel()->setCurrentIndex(m_rows.index(row), QItemSelectionModel::NoUpdate);
        scrollTo(m_rows.index(row));
    } else {
        choose(row, shift, false);
    }
    return true;
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
        if (m_rows.record(row)->fileName.startsWith(prefix, Qt::CaseInsensitive)) {
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
    const QModelIndex index = indexAt(event->position().toPoint());
    if (index.isValid())
        choose(index.row(), event->modifiers() & Qt::ShiftModifier, event->modifiers() & Qt::ControlModifier);
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
    QListView::resizeEvent(event);
    followScreen();
}

void SidebarList::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    followScreen();
}

void SidebarList::updateGeometries()
{
    QListView::updateGeometries();
    followScreen();
}

std::pair<int, int> SidebarList::rowsOnScreen() const
{
    const int first = verticalOffset() / SidebarDelegate::pitch();
    const int last = (verticalOffset() + viewport()->height()) / SidebarDelegate::pitch();
    return { qMax(0, first), qMin(last, m_rows.rowCount() - 1) };
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

// Only what is on screen shows it. Rows are as high as ever: nothing has to be laid out again, as QListView would do.
void SidebarList::dataChanged(const QModelIndex& first, const QModelIndex& last, const QList<int>& roles)
{
    const auto [top, bottom] = rowsOnScreen();
    const int from = qMax(first.row(), top);
    const int to = qMin(last.row(), bottom);
    if (from <= to)
        QAbstractItemView::dataChanged(m_rows.index(from), m_rows.index(to), roles);
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
            (row >= first && row <= last ? urls : near).append(photo->url);
    m_thumbs->setVisible(urls, near);
    // The newest request is served first: ask from the bottom, so that the list fills from the top.
    std::for_each(
        urls.crbegin(), urls.crend(), [this](const QUrl& url) { m_thumbs->request(url, ThumbnailStore::Kind::small); });
}

void SidebarList::repaintThumbnail(const QUrl& url)
{
    const auto [first, last] = rowsOnScreen();
    for (int row = first; row <= last; ++row)
        if (const ImageRecord* photo = m_rows.record(row); photo && photo->url == url) {
            update(m_rows.index(row));
            if (m_thumbs->entry(url, ThumbnailStore::Kind::small).state == ThumbnailStore::State::none)
                m_thumbnailsSoon.start(0);  // forgotten: asked for again
        }
}

}  // namespace Quorbel
