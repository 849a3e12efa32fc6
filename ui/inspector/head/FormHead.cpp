#include "ui/inspector/head/FormHead.h"

#include "app/model/AppModel.h"
#include "app/model/pairs/Pairing.h"
#include "app/model/selection/SelectedSidecars.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/ReadingOrder.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/inspector/FormSection.h"
#include "ui/inspector/InspectorStates.h"
#include "ui/inspector/head/BatchBanner.h"
#include "ui/inspector/head/FieldSetPicker.h"
#include "ui/inspector/head/PhotoHeader.h"
#include "ui/inspector/head/UnreadNotice.h"

#include <QVBoxLayout>

namespace Quorbel {

FormHead::FormHead(AppModel& model, ThumbnailStore* thumbs, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_header(new PhotoHeader(thumbs, this))
    , m_banner(new BatchBanner(this))
    , m_unread(new UnreadNotice(model, this))
    , m_picker(makeFieldSetPicker(model.fieldSets(), m_header))
    , m_batchPicker(makeFieldSetPicker(model.fieldSets(), m_banner))
{
    describeInReadingOrder(staticMetaObject, QAccessible::Client);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addWidget(m_header);
    column->addWidget(m_banner);
    column->addWidget(m_unread);
    m_header->setAtEnd(m_picker);
    m_banner->setAtEnd(m_batchPicker);
    connect(m_banner->agree(), &QAbstractButton::clicked, &m_model, &AppModel::requestMakeAgree);
    connect(&m_model.selectedSidecars(), &SelectedSidecars::changed, this, &FormHead::refresh);
    connect(&m_model, &AppModel::visibleRowsChanged, this, &FormHead::refresh);
    // The room that sections leave for the dots.
    onRestyle(this, [column] { column->setContentsMargins(mirrored(QMargins(px(FormSection::dotRoom), 0, 0, 0))); });
}

void FormHead::refresh()
{
    m_header->setVisible(!m_model.isBatch());
    m_banner->setVisible(m_model.isBatch());
    m_unread->refresh();
    const QString reading = InspectorStates::readingText(m_model);
    const SelectedSidecars& sidecars = m_model.selectedSidecars();
    const QString target = sidecars.text();
    m_banner->setPhotos(m_model.selection().size(), reading,
        reading.isEmpty() && !target.isEmpty() ? Texts::tr("%1.").arg(target) : QString());
    m_header->setSidecar(target, sidecars.told().path);
    // While photos are read, how far that is comes first.
    m_banner->setDisagreements(
        reading.isEmpty() ? InspectorStates::disagreementsText(m_model) : QString(), m_model.canMakeAgree());
    const Pairing& pairing = m_model.pairing();
    if (const ImageRecord* record = m_model.primaryRecord())
        m_header->setRecord(
            *record, { pairing.seenFile(record->url), pairing.detailLine(*record), pairing.names(*record) });
}

QList<QWidget*> FormHead::tabStops() const
{
    return { m_picker, m_batchPicker, m_banner->agree(), m_unread->tryAgain() };
}

}  // namespace Quorbel
