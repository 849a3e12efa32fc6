#include "ui/inspector/PhotoHeader.h"

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

}  // namespace

PhotoHeader::PhotoHeader(ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_thumbnail(new ThumbnailView(thumbs, heightInPoints, corner))
    , m_name(new ThemedLabel({}, TextRole::text, 15, QFont::DemiBold))
    , m_details(new ThemedLabel({}, TextRole::muted, 12))
{
    auto* line = new QHBoxLayout(this);
    auto* column = new QVBoxLayout;
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_thumbnail);
    line->addLayout(column, 1);
    column->setContentsMargins(0, 0, 0, 0);
    column->addStretch();
    column->addWidget(m_name);
    column->addWidget(m_details);
    column->addStretch();
    m_name->setElided(true);
    m_name->setVerbatim(true);
    m_name->setLineHeight(20);
    m_details->setElided(true);
    m_details->setLineHeight(17);
    onRestyle(this, [this, line, column] {
        setFixedHeight(px(heightInPoints));
        line->setSpacing(px(gap));
        column->setSpacing(px(2));
    });
}

void PhotoHeader::setAtEnd(QWidget* widget)
{
    static_cast<QHBoxLayout*>(layout())->addWidget(widget);
}

void PhotoHeader::setRecord(const ImageRecord& record)
{
    m_thumbnail->setUrl(record.url);
    if (m_name->text() != record.fileName)
        m_name->setText(record.fileName);
    if (const QString details = record.detailLine(); m_details->text() != details)
        m_details->setText(details);
}

}  // namespace Quorbel
