#include "ui/templates/TokenPills.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/FlowLayout.h"
#include "ui/controls/HoverFade.h"
#include "ui/controls/attached/SearchMenu.h"
#include "ui/controls/theme/FocusRing.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Painting.h"
#include "ui/controls/theme/Theme.h"

#include <QEvent>
#include <QPainter>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr qreal gap = 4;
constexpr qreal menuWidth = 300;
constexpr qreal pillHeight = 24;
constexpr qreal pillPadding = 9;

// One token, smaller than where such pills stand alone.
class TokenPill final : public ThemedButton {
public:
    explicit TokenPill(const QString& title)
        : ThemedButton(title)
    {
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        // The caret stays in the text; Tab still comes here.
        setFocusPolicy(Qt::TabFocus);
        onRestyle(this, [this] {
            setFont(sansFont(12));
            updateGeometry();
        });
        installFocusRing(this, { RingShape::tight, pillHeight / 2, {}, {} });
    }

    QSize sizeHint() const override
    {
        return { fontMetrics().horizontalAdvance(text()) + 2 * px(pillPadding) + 2, px(pillHeight) };
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        const QColor fill =
            isDown() ? theme.derived.secondaryPressed : mixed(theme.btn, theme.derived.secondaryHover, fade()->hover());
        paintBox(painter, rect(), height() / 2.0, fill,
            QPen(mixed(theme.btnLine, theme.derived.secondaryHoverLine, fade()->hover()), 1));
        painter.setPen(theme.text);
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
    }
};

}  // namespace

TokenPills::TokenPills(QWidget* parent)
    : QWidget(parent)
    //: Button: shows further tokens.
    , m_more(new QBTextButton(Texts::tr("More…")))
{
    auto* flow = new FlowLayout(px(gap), this);
    for (const char* name : { "Date", "Title", "Creator", "Place", "Counter", "Filename" }) {
        const TokenSpec* spec = TokenCatalog::find(QString::fromLatin1(name));
        const QString label = Texts::shown(spec->label);
        auto* chip = new TokenPill(label);
        chip->setToolTip(u'%' + spec->name + u'%');
        //: Puts a token into a text. %1: its name, as “Date taken”.
        chip->setAccessibleName(Texts::tr("Insert %1").arg(label));
        connect(chip, &QAbstractButton::clicked, this, [this, spec] { emit picked({ .name = spec->name }); });
        flow->addWidget(chip);
        m_stops.append(chip);
    }
    m_more->setFocusPolicy(Qt::TabFocus);
    m_more->setAccessibleName(Texts::tr("More tokens"));
    connect(m_more, &QAbstractButton::clicked, this, &TokenPills::showAll);
    flow->addWidget(m_more);
    m_stops.append(m_more);
    onRestyle(this, [this, flow] {
        flow->setSpacing(px(gap));
        fit();
    });
}

void TokenPills::showAll()
{
    auto* menu = new SearchMenu(Texts::tr("Tokens"), Texts::tr("Search tokens…"), m_more);
    QList<SearchMenuRow> rows;
    for (const TokenSpec& spec : TokenCatalog::all())
        rows.append({ Texts::shown(spec.label), u'%' + spec.name + u'%', spec.label });
    menu->setRows(rows);
    menu->setNothingFound(Texts::tr("No token of this name."));
    connect(menu, &SearchMenu::picked, this,
        [this](const SearchMenuRow& row) { emit picked({ .name = QString(row.code).remove(u'%') }); });
    menu->open(QRect(m_more->mapToGlobal(QPoint(0, 0)), m_more->size()), px(menuWidth));
}

bool TokenPills::event(QEvent* event)
{
    if (event->type() == QEvent::LayoutRequest)
        fit();
    return QWidget::event(event);
}

void TokenPills::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    fit();
}

void TokenPills::fit()
{
    if (const int wanted = layout()->heightForWidth(width()); wanted != height() || wanted != minimumHeight())
        setFixedHeight(wanted);
}

}  // namespace Quorbel
