#include "ui/sidebar/NothingListed.h"

#include "app/model/AppModel.h"
#include "app/model/library/filter/Filtering.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sidebar/DisagreementsBar.h"
#include "ui/sidebar/FilterTexts.h"
#include "ui/sidebar/SidebarList.h"

#include <QEvent>
#include <QLocale>

namespace Quorbel {

using namespace Qt::StringLiterals;

NothingListed::NothingListed(AppModel& model, SidebarList& list)
    : QWidget(list.parentWidget())
    , m_model(model)
    , m_list(list)
    , m_text(new ThemedLabel({}, TextRole::label, 12, QFont::Normal, this))
    , m_look(new QBButton(DisagreementsBar::lookTitle(), QBButtonKind::secondary, this))
    , m_clear(new QBButton(FilterTexts::clearTitle(), QBButtonKind::secondary, this))
{
    m_text->setAlignment(Qt::AlignCenter);
    list.installEventFilter(this);
    list.viewport()->installEventFilter(this);
    connect(m_look, &QAbstractButton::clicked, &model, [&model] { model.setShowDisagreements(true); });
    connect(m_clear, &QAbstractButton::clicked, this, [this] {
        m_model.filtering().clear();
        m_list.setFocus(Qt::OtherFocusReason);  // the button goes
    });
    const QAbstractItemModel& rows = *list.model();
    connect(&rows, &QAbstractItemModel::modelReset, this, &NothingListed::refresh);
    connect(&rows, &QAbstractItemModel::rowsInserted, this, &NothingListed::refresh);
    connect(&rows, &QAbstractItemModel::rowsRemoved, this, &NothingListed::refresh);
    connect(&model, &AppModel::disagreementsChanged, this, &NothingListed::refresh);
    connect(&model.filtering(), &Filtering::changed, this, &NothingListed::refresh);
    onRestyle(this, [this] { refresh(); });
}

// Whoever looks only for photos whose places differ is told how far that is.
NothingListed::Said NothingListed::said() const
{
    if (m_list.model()->rowCount() > 0 || m_model.records().isEmpty())
        return {};
    const PhotoFilter& filter = m_model.filtering().filter();
    if (!filter.needle.isEmpty())
        return { Texts::tr("No matching photos."), false, filter.isLimiting() };
    if (filter.traits != PhotoTrait::disagreement || filter.stars > 0)
        //: No photo fits the filters.
        return { Texts::tr("Nothing left"), false, true };
    const qsizetype unknown = m_model.disagreements().unknown;
    if (unknown == 0)
        //: All places within the photos in which a field stands.
        return { Texts::tr("All places agree"), false, false };
    const QString text = Texts::tr("%1 photo(s) not looked at yet", nullptr, unknown).arg(QLocale().toString(unknown));
    return { text, DisagreementsBar::canLook(m_model), false };
}

void NothingListed::refresh()
{
    const Said said = this->said();
    m_list.setAccessibleDescription(said.text);
    m_text->setText(said.text);
    m_look->setVisible(said.offersLook);
    m_clear->setVisible(said.offersClear);
    setVisible(!said.text.isEmpty());
    place();
}

void NothingListed::place()
{
    const QRect room = m_list.viewport()->rect();
    const QPoint corner = m_list.viewport()->mapTo(m_list.parentWidget(), QPoint());
    setGeometry(QRect(corner, QSize(room.width(), qMin(room.height(), px(92)))));
    m_text->setGeometry(0, px(24), width(), px(18));
    for (QBButton* button : { m_look, m_clear }) {
        const QSize size = button->sizeHint();
        button->setGeometry(QRect({ (width() - size.width()) / 2, px(54) }, size));
    }
    raise();
}

bool NothingListed::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    return QWidget::eventFilter(watched, event);
}

}  // namespace Quorbel
