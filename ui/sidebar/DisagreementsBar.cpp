#include "ui/sidebar/DisagreementsBar.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/NoticeLine.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"

#include <QLocale>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal corner = 7;
constexpr qreal side = 10;
constexpr qreal aboveText = 5.5;
constexpr qreal closeSide = 20;

struct FoundTexts {
    QString whole{};
    QString brief{};
};

FoundTexts textsOf(const AppModel& model)
{
    const AppModel::Disagreements found = model.disagreements();
    const QLocale locale;
    if (found.isLooking) {
        const qsizetype all = model.records().size();
        const QString looked = locale.toString(all - found.unknown);
        //: While photos are read. %1 and %2 are numbers.
        return { Texts::tr("Looking… %1 of %2").arg(looked, locale.toString(all)),
            Texts::tr("%1 of %2").arg(looked, locale.toString(all)) };
    }
    const QString photos = locale.toString(found.photos);
    //: %1: how many photos hold a field in several places that differ.
    FoundTexts texts{ Texts::tr("%1 photo(s) (disagrees|disagree)", nullptr, found.photos).arg(photos),
        //: As “%1 photos disagree”, where there is little room.
        Texts::tr("%1 disagree", nullptr, found.photos).arg(photos) };
    if (found.unknown == 0)
        return texts;
    const QString unknown = locale.toString(found.unknown);
    //: %1: how many photos.
    texts.whole += u" · "_s + Texts::tr("%1 not looked at yet", nullptr, found.unknown).arg(unknown);
    //: As “%1 not looked at yet”, where there is little room.
    texts.brief += u" · "_s + Texts::tr("%1 unknown", nullptr, found.unknown).arg(unknown);
    return texts;
}

}  // namespace

DisagreementsBar::DisagreementsBar(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_model(model)
    , m_notice(new NoticeLine(lookTitle(), this))
    , m_close(new QBIconButton(u"xmark"_s, Texts::tr("Show all photos"), this))
{
    m_notice->setRoles(TextRole::text, TextRole::text);
    m_close->setSizes({ closeSide, closeSide }, 10, 2.6, 6);
    m_close->setQuiet(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(m_close, &QAbstractButton::clicked, &model, [&model] { model.setShowDisagreements(false); });
    connect(m_notice->button(), &QAbstractButton::clicked, &model, [&model] { model.setShowDisagreements(true); });
    connect(m_notice, &NoticeLine::changed, this, &DisagreementsBar::place);
    connect(&model, &AppModel::disagreementsChanged, this, &DisagreementsBar::follow);
    connect(&model, &AppModel::recordsChanged, this, &DisagreementsBar::follow);
    onRestyle(this, [this] { place(); });
    follow();
}

QString DisagreementsBar::lookTitle()
{
    //: Button behind a number of photos that were not looked at yet.
    return Texts::tr("Look at them");
}

bool DisagreementsBar::canLook(const AppModel& model)
{
    const AppModel::Disagreements found = model.disagreements();
    return found.unknown > 0 && !found.isLooking;
}

void DisagreementsBar::follow()
{
    const FoundTexts texts = textsOf(m_model);
    m_notice->setText(texts.whole, texts.brief);
    m_notice->setOffered(canLook(m_model));
}

void DisagreementsBar::place()
{
    const int around = px(aboveText);
    const int close = px(closeSide);
    const int room = qMax(0, width() - px(side) - close - 2 * px(3));
    const int text = m_notice->lines(room) * NoticeLine::lineHeight();
    setFixedHeight(text + 2 * around);
    m_notice->setGeometry(mirrored(QRect(px(side), around, room, text), this));
    const int top = around + (NoticeLine::lineHeight() - close) / 2;
    m_close->setGeometry(mirrored(QRect(width() - close - px(3), top, close, close), this));
}

void DisagreementsBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    place();
}

void DisagreementsBar::paintEvent(QPaintEvent*)
{
    const Theme& theme = Theme::of(this);
    DirectedPainter painter(this);
    paintBox(painter, rect(), pxF(corner), theme.chip, QPen(theme.derived.chipLine, 1));
}

}  // namespace Quorbel
