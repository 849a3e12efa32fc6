#include "ui/inspector/head/PhotoHeader.h"

#include "core/schema/ImageRecord.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sidebar/ThumbnailView.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

namespace {

// Points.
constexpr qreal gap = 14;
constexpr qreal corner = 9;
constexpr qreal leastText = 120;

}  // namespace

PhotoHeader::PhotoHeader(ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_thumbnail(new ThumbnailView(thumbs, heightInPoints, corner))
    , m_name(new ThemedLabel({}, TextRole::text, 15, QFont::DemiBold))
    , m_details(new ThemedLabel({}, TextRole::muted, 12))
    , m_sidecar(new ThemedLabel({}, TextRole::label, 12))
    , m_end(new QWidget(this))
{
    auto* line = new QHBoxLayout(this);
    auto* column = new QVBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_thumbnail);
    line->addLayout(column, 1);
    line->addWidget(m_end);
    (new QHBoxLayout(m_end))->setContentsMargins(0, 0, 0, 0);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch();
    column->addWidget(m_name);
    column->addWidget(m_details);
    column->addWidget(m_sidecar);
    column->addStretch();
    m_name->setElided(true);
    m_name->setVerbatim(true);
    m_name->setLineHeight(20);
    m_details->setElided(true);
    m_details->setLineHeight(17);
    m_sidecar->setVerbatim(true);
    m_sidecar->setLineHeight(17);
    m_sidecar->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_sidecar->setMinimumWidth(1);
    m_sidecar->installEventFilter(this);
    m_sidecar->hide();
    onRestyle(this, [this, line, column] {
        setFixedHeight(px(heightInPoints));
        line->setSpacing(px(gap));
        column->setSpacing(px(2));
        elideSidecar();
    });
}

void PhotoHeader::setAtEnd(QWidget* widget)
{
    m_atEnd = widget;
    m_end->layout()->addWidget(widget);
    widget->installEventFilter(this);
    showEnd();
}

void PhotoHeader::showEnd()
{
    const int room = width() - m_thumbnail->width() - 2 * px(gap) - (m_atEnd ? m_atEnd->sizeHint().width() : 0);
    m_end->setVisible(m_atEnd && !m_atEnd->isHidden() && room >= px(leastText));
}

void PhotoHeader::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showEnd();
}

bool PhotoHeader::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_atEnd && (event->type() == QEvent::ShowToParent || event->type() == QEvent::HideToParent))
        showEnd();
    if (watched == m_sidecar && event->type() == QEvent::Resize)
        elideSidecar();
    return QWidget::eventFilter(watched, event);
}

void PhotoHeader::setSidecar(const QString& text, const QString& path)
{
    m_sidecarText = text;
    m_sidecarName = path.sliced(path.lastIndexOf(u'/') + 1);
    m_sidecar->setToolTip(path);
    m_sidecar->setAccessibleName(text);
    m_sidecar->setAccessibleDescription(path);
    m_sidecar->setVisible(!text.isEmpty());
    elideSidecar();
}

// Names of photos in a row differ at their ends; of two files each keeps its own.
void PhotoHeader::elideSidecar()
{
    const QFontMetrics metrics = m_sidecar->fontMetrics();
    const int width = m_sidecar->contentsRect().width();
    QString shown = m_sidecarText;
    const qsizetype first = m_sidecarName.isEmpty() ? -1 : shown.indexOf(m_sidecarName);
    const qsizetype second = first < 0 ? -1 : shown.indexOf(m_pictureName, first + m_sidecarName.size());
    if (second > 0 && metrics.horizontalAdvance(shown) > width) {
        const int names = metrics.horizontalAdvance(m_sidecarName) + metrics.horizontalAdvance(m_pictureName);
        const int room = (width - metrics.horizontalAdvance(shown) + names) / 2;
        const auto shorten = [&](qsizetype at, const QString& name) {
            shown.replace(at, name.size(), metrics.elidedText(name, Qt::ElideMiddle, room));
        };
        shorten(second, m_pictureName);
        shorten(first, m_sidecarName);
    }
    shown = metrics.elidedText(shown, Qt::ElideMiddle, width);
    if (m_sidecar->text() != shown)
        m_sidecar->setText(shown);
}

void PhotoHeader::setRecord(const ImageRecord& record, const Shot& shot)
{
    m_thumbnail->setUrl(shot.picture);
    m_pictureName = shot.picture.fileName();
    if (m_name->text() != record.fileName)
        m_name->setText(record.fileName);
    if (m_details->text() != shot.details)
        m_details->setText(shot.details);
    m_name->setToolTip(shot.names == record.fileName ? QString() : shot.names);
    elideSidecar();
}

}  // namespace Quorbel
