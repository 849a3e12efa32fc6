#include "ui/closeup/CloseupView.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/selection/ShownPhotos.h"
#include "app/model/thumbnails/ThumbnailStore.h"
#include "core/language/Texts.h"
#include "core/schema/FieldID.h"
#include "ui/closeup/CloseupLine.h"
#include "ui/controls/Accessibility.h"
#include "ui/controls/BriefNote.h"
#include "ui/controls/theme/HighContrast.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/inspector/KeptField.h"
#include "ui/sheets/Sheet.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMenuBar>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QStyleHints>

#include <cmath>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

constexpr double wheelStep = 1.25;  // a notch
constexpr int notch = 120;  // of QWheelEvent's eighths of a degree
constexpr double panPart = .25;  // of the view, by key

QString sizeText(QSize size)
{
    return u"%1 × %2"_s.arg(size.width()).arg(size.height());
}

// The size, standing or lying as the other one does.
QSize turnedAs(QSize size, QSize other)
{
    return (size.width() < size.height()) == (other.width() < other.height()) ? size : size.transposed();
}

}  // namespace

CloseupView::CloseupView(AppModel& model, ThumbnailStore* thumbs, WholePicturesOptions options, QWidget* window)
    : QWidget(window)
    , m_model(model)
    , m_thumbs(thumbs)
    , m_pictures(std::move(options))
    , m_line(new CloseupLine(this))
    , m_note(new BriefNote(this))
{
    describeAs(staticMetaObject, QAccessible::Graphic);
    setProperty(KeptField::coverProperty, true);
    setTheme(this, HighContrast::isOn(Theme::of(window)) ? HighContrast::palette(true) : Theme::dark());
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setGeometry(window->rect());
    window->installEventFilter(this);
    connect(m_line, &CloseupLine::closeAsked, this, &CloseupView::closed);
    for (const auto change : { &AppModel::primaryChanged, &AppModel::selectionChanged, &AppModel::recordsChanged,
             &AppModel::visibleRowsChanged, &AppModel::folderGroupsChanged })
        connect(&model, change, this, &CloseupView::follow);
    connect(&model, &AppModel::editsChanged, this, &CloseupView::refresh);
    // The banner lies behind this.
    connect(&model, &AppModel::errorMessageChanged, this, [this] {
        if (const auto& message = m_model.errorMessage())
            m_note->say(*message);
    });
    connect(&m_pictures, &WholePictures::changed, this, &CloseupView::refresh);
    if (thumbs)
        connect(thumbs, &ThumbnailStore::entryChanged, this, [this](const QUrl& url) {
            if (url == m_photo)
                refresh();
        });
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget*, const QWidget* now) { keepKeyboard(now); });
    follow();
}

// --- Which photo ---

void CloseupView::follow()
{
    if (!m_model.primaryRecord())
        return emit closed();
    m_photo = m_model.pairing().seenFile(*m_model.primary());
    look();
    refresh();
}

// The neighbour that the last step led towards comes next, most likely.
void CloseupView::look()
{
    const qsizetype row = m_model.visibleRows().indexOf(int(m_model.primaryRecord() - m_model.records().constData()));
    QList<QUrl> ahead;
    for (const int places : { m_towards, -m_towards })
        if (const auto photo =
                ShownPhotos::from(m_model.records(), m_model.visibleRows(), m_model.folderGroups(), row, places);
            photo && photo != m_model.primary())
            ahead.append(m_model.pairing().seenFile(*photo));
    if (m_thumbs) {
        for (auto photo = ahead.crbegin(); photo != ahead.crend(); ++photo)
            m_thumbs->request(*photo, ThumbnailStore::Kind::preview);
        m_thumbs->request(*m_photo, ThumbnailStore::Kind::preview);
    }
    m_pictures.look(*m_photo, ahead);
}

void CloseupView::refresh()
{
    if (!m_model.primaryRecord())
        return;
    const CloseupText now = text();
    m_line->setText(now);
    if (const QString spoken = now.spoken(); spoken != accessibleName()) {
        setAccessibleName(spoken);
        QAccessibleEvent event(this, QAccessible::NameChanged);
        QAccessible::updateAccessibility(&event);
    }
    setAccessibleDescription(seen().image.isNull() ? problem() : QString());
    setCursor(m_pressed && m_isDragged ? Qt::ClosedHandCursor
            : m_place.isFitted()       ? Qt::ArrowCursor
                                       : Qt::OpenHandCursor);
    update();
}

void CloseupView::step(int places)
{
    m_towards = places;
    if (!m_model.canStep(places))
        m_note->say(places > 0 ? Texts::tr("This is the last photo") : Texts::tr("This is the first photo"));
    m_model.step(places);
}

void CloseupView::rate(int stars)
{
    if (m_model.unreadSelected() > 0 && !m_model.isBatch())
        return;
    m_model.rate(stars);
    m_note->say(stars == 0 ? Texts::tr("No stars") : QString(stars, u'\u2605'));
}

// --- What is seen of it ---

QSize CloseupView::viewSize() const
{
    return (QSizeF(size()) * devicePixelRatioF()).toSize();
}

CloseupView::Seen CloseupView::seen() const
{
    const WholePicture* picture = m_photo ? m_pictures.picture(*m_photo) : nullptr;
    if (picture && !picture->levels.isEmpty()) {
        // The smallest that is still as fine as the screen.
        const QSize photo = picture->size();
        const double width = photo.width() * m_place.shownZoom(photo, viewSize());
        QImage best = picture->levels.constFirst();
        for (const QImage& level : picture->levels)
            if (level.width() >= width)
                best = level;
        return { best, photo, true };
    }
    QImage image;
    for (const auto kind : { ThumbnailStore::Kind::small, ThumbnailStore::Kind::preview })
        if (const auto entry = m_thumbs && m_photo ? m_thumbs->entry(*m_photo, kind) : ThumbnailStore::Entry();
            !entry.image.isNull())
            image = entry.image;
    const ImageRecord* record = m_model.primaryRecord();
    const QSize told = record ? QSize(record->pixelWidth.value_or(0), record->pixelHeight.value_or(0)) : QSize();
    return { image, told.isEmpty() ? image.size() : turnedAs(told, image.size()), false };
}

QString CloseupView::noteOf(const WholePicture* picture) const
{
    if (!picture)
        return {};
    if (picture->levels.isEmpty())
        //: Of the photo there is just this small picture.
        return seen().image.isNull() ? QString() : Texts::tr("thumbnail only");
    QStringList notes{ sizeNoteOf(*picture) };
    if (picture->isIncomplete)
        notes.prepend(Texts::tr("damaged: not all of it can be shown"));
    notes.removeAll(QString());
    return notes.join(u" · "_s);
}

QString CloseupView::sizeNoteOf(const WholePicture& picture) const
{
    const ImageRecord* record = m_model.primaryRecord();
    QSize photo = picture.photo;
    if (photo.isEmpty() && picture.isPreview && record)
        photo = turnedAs({ record->pixelWidth.value_or(0), record->pixelHeight.value_or(0) }, picture.size());
    const QString size = sizeText(picture.size());
    if (photo.isEmpty() || photo == picture.size())
        //: The preview within a raw file is shown. %1: its size, as “1616 × 1080”.
        return picture.isPreview ? Texts::tr("preview %1").arg(size) : QString();
    //: %1: size of what is shown, as “1616 × 1080”. %2: size of the photo.
    return (picture.isPreview ? Texts::tr("preview %1 of %2") : Texts::tr("reduced to %1 of %2"))
        .arg(size, sizeText(photo));
}

CloseupText CloseupView::text() const
{
    CloseupText text;
    const ImageRecord* record = m_model.primaryRecord();
    if (!record)
        return text;
    text.name = record->fileName;
    const qsizetype row = m_model.visibleRows().indexOf(int(record - m_model.records().constData()));
    const QString shown = QString::number(m_model.visibleRows().size());
    text.place = u"%1 / %2"_s.arg(row < 0 ? u"–"_s : QString::number(row + 1), shown);
    const QString rating =
        m_model.isBatch() ? record->values.value(FieldID::rating) : m_model.draftValues().value(FieldID::rating);
    text.stars = qBound(0, int(rating.toDouble()), 5);
    if (const int unsaved = m_model.unsavedCount(); unsaved > 0)
        text.unsaved = Texts::tr("%n edit(s) unsaved", nullptr, unsaved);
    const WholePicture* picture = m_photo ? m_pictures.picture(*m_photo) : nullptr;
    text.note = noteOf(picture);
    if (const Seen now = seen(); !now.photo.isEmpty())
        text.zoom = u"%1 %"_s.arg(qRound(100 * m_place.shownZoom(now.photo, viewSize())));
    return text;
}

// Why there is nothing to see.
QString CloseupView::problem() const
{
    const WholePicture* picture = m_photo ? m_pictures.picture(*m_photo) : nullptr;
    if (!picture)
        return Texts::tr("Reading…");
    switch (picture->outcome) {
    case DecodedImage::Outcome::damaged:
        return Texts::tr("This photo is damaged: there is nothing in it to show.");
    case DecodedImage::Outcome::tooLarge:
        return Texts::tr("This photo has more pixels than can be shown.");
    default:
        return Texts::tr("There is no picture in this file that can be shown.");
    }
}

void CloseupView::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    painter.fillRect(rect(), theme.previewBg);
    if (!seen().image.isNull())
        return paintPhoto(painter);
    painter.setPen(theme.derived.label);
    painter.setFont(sansFont(13));
    painter.drawText(rect(), Qt::AlignCenter, problem());
}

// In device pixels, so that 100 % is one for each of the photo's, exactly.
void CloseupView::paintPhoto(QPainter& painter) const
{
    constexpr double pixelsAreSeen = 2;
    const Seen now = seen();
    const QSize view = viewSize();
    const QRectF whole = m_place.rect(now.photo, view);
    const QRectF target = whole & QRectF(QPointF(), QSizeF(view));
    const double across = now.image.width() / whole.width();
    const double down = now.image.height() / whole.height();
    const QRectF source((target.left() - whole.left()) * across, (target.top() - whole.top()) * down,
        target.width() * across, target.height() * down);
    const double scale = 1 / devicePixelRatioF();
    painter.scale(scale, scale);
    const bool isExact = now.isSharp && (across == 1 || 1 / across >= pixelsAreSeen);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, !isExact);
    painter.drawImage(target, now.image, source);
}

// --- Keyboard ---

void CloseupView::keyPressEvent(QKeyEvent* event)
{
    const bool isPlain = !(event->modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    const int key = event->key();
    if (!isPlain)
        return event->ignore();
    if (key == Qt::Key_Escape || key == Qt::Key_Space || key == Qt::Key_F11) {
        emit closed();
    } else if (key >= Qt::Key_0 && key <= Qt::Key_5) {
        rate(key - Qt::Key_0);
    } else if (!move(*event) && !zoom(*event)) {
        event->ignore();
    }
}

bool CloseupView::move(const QKeyEvent& event)
{
    QPoint towards;
    // The next photo is where one reads on; a photo is moved as it is seen.
    const bool isMoved = event.modifiers() & Qt::ShiftModifier;
    switch (isMoved ? event.key() : mirroredKey(event.key(), this)) {
    case Qt::Key_Left:
        towards = { -1, 0 };
        break;
    case Qt::Key_Right:
        towards = { 1, 0 };
        break;
    case Qt::Key_Up:
        towards = { 0, -1 };
        break;
    case Qt::Key_Down:
        towards = { 0, 1 };
        break;
    default:
        return false;
    }
    const QSize view = viewSize();
    if (!isMoved)
        step(towards.x() + towards.y());
    else
        setPlace(m_place.panned(QPointF(-towards.x() * view.width() * panPart, -towards.y() * view.height() * panPart),
            seen().photo, view));
    return true;
}

bool CloseupView::zoom(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Z: {
        const QPointF pointer = mapFromGlobal(QCursor::pos());
        if (!m_place.isFitted())
            setPlace({ 0, m_place.center });
        else if (underMouse())
            setPlace(m_place.zoomed(1, devicePoint(pointer), seen().photo, viewSize()));
        else
            setPlace({ 1, m_place.center });
        return true;
    }
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        setPlace(m_place.stepped(1, seen().photo, viewSize()));
        return true;
    case Qt::Key_Minus:
        setPlace(m_place.stepped(-1, seen().photo, viewSize()));
        return true;
    default:
        return false;
    }
}

void CloseupView::setPlace(const CloseupPlace& place)
{
    m_place = place;
    m_line->appear();
    refresh();
}

// What lies behind is not seen: no key is to reach it.
void CloseupView::keepKeyboard(const QWidget* now)
{
    if (!isVisible() || !now || now == this || now->window() != window() || qobject_cast<const QMenuBar*>(now))
        return;
    for (const QWidget* around = now; around; around = around->parentWidget())
        if (around == this || qobject_cast<const SheetHost*>(around))
            return;
    setFocus(Qt::OtherFocusReason);
}

// --- Mouse ---

void CloseupView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_pressed = event->position();
    m_isDragged = false;
}

void CloseupView::mouseMoveEvent(QMouseEvent* event)
{
    m_line->appear();
    if (!m_pressed)
        return;
    const QPointF by = event->position() - *m_pressed;
    if (!m_isDragged && by.manhattanLength() < QGuiApplication::styleHints()->startDragDistance())
        return;
    m_isDragged = true;
    m_pressed = event->position();
    if (!m_place.isFitted())
        setPlace(m_place.panned(devicePoint(by), seen().photo, viewSize()));
}

void CloseupView::mouseReleaseEvent(QMouseEvent* event)
{
    const bool isClick = m_pressed && !m_isDragged && event->button() == Qt::LeftButton;
    m_pressed.reset();
    m_isDragged = false;
    if (isClick && m_place.isFitted() && CloseupPlace::fittedZoom(seen().photo, viewSize()) < 1)
        return setPlace(m_place.zoomed(1, devicePoint(event->position()), seen().photo, viewSize()));
    refresh();
}

void CloseupView::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        setPlace({ 0, m_place.center });
}

void CloseupView::wheelEvent(QWheelEvent* event)
{
    const double notches = double(event->angleDelta().y()) / notch;
    if (notches != 0)
        zoomBy(std::pow(wheelStep, notches), event->position());
    event->accept();
}

// On its way past the photo's own pixels it stops there.
void CloseupView::zoomBy(double factor, QPointF at)
{
    const Seen now = seen();
    const double from = m_place.shownZoom(now.photo, viewSize());
    const double to = from * factor;
    const bool passesOne = (from < 1 && to > 1) || (from > 1 && to < 1);
    setPlace(m_place.zoomed(passesOne ? 1 : to, devicePoint(at), now.photo, viewSize()));
}

bool CloseupView::event(QEvent* event)
{
    if (event->type() == QEvent::NativeGesture) {
        const auto* gesture = static_cast<QNativeGestureEvent*>(event);
        if (gesture->gestureType() == Qt::ZoomNativeGesture) {
            zoomBy(1 + gesture->value(), gesture->position());
            return true;
        }
    }
    return QWidget::event(event);
}

// --- Where it lies ---

bool CloseupView::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize)
        setGeometry(parentWidget()->rect());
    return QWidget::eventFilter(watched, event);
}

void CloseupView::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const int height = CloseupLine::lineHeight();
    m_line->setGeometry(0, this->height() - height, width(), height);
    refresh();
}

}  // namespace Quorbel
