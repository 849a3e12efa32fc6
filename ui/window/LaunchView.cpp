#include "ui/window/LaunchView.h"

#include "app/model/AppModel.h"
#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/Toggles.h"
#include "ui/controls/theme/Icon.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/controls/theme/Mirroring.h"
#include "ui/controls/theme/Theme.h"
#include "ui/window/ProgressFoot.h"

#include <QHBoxLayout>
#include <QMouseEvent>
#include <QPainter>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

// Points.
constexpr QSizeF boxSize{ 420, 218 };
constexpr qreal leastBoxHeight = 112;
constexpr qreal boxRadius = 18;
constexpr qreal iconSize = 62;
constexpr qreal iconStroke = 1.15;  // in the icon's own 24×24 drawing
constexpr qreal textGap = 16;
constexpr qreal lineHeight = 18;
constexpr qreal buttonsGap = 20;
constexpr qreal switchGap = 18;
constexpr qreal ringRoom = 4;

// The launch palette: the same in light and dark, as nothing but a drag shows it.
QColor targetedFill()
{
    return colorFromHex(u"cfe0a8"_s);
}

QColor targetedBorder()
{
    return colorFromHex(u"7fa85f"_s);
}

QColor targetedText()
{
    return colorFromHex(u"3e5c2c"_s);
}

// The text beside a switch, which it flips too.
class SwitchName final : public ThemedLabel {
public:
    SwitchName(const QString& text, QBSwitch* toggle)
        : ThemedLabel(text, TextRole::label)
        , m_toggle(toggle)
    {
    }

protected:
    void mousePressEvent(QMouseEvent* event) override { event->accept(); }
    void mouseReleaseEvent(QMouseEvent* event) override
    {
        if (event->button() == Qt::LeftButton && rect().contains(event->position().toPoint()))
            m_toggle->click();
    }

private:
    QBSwitch* m_toggle;
};

}  // namespace

class DropBox final : public QWidget {
public:
    explicit DropBox(QWidget* parent)
        : QWidget(parent)
    {
        setObjectName(u"dropBox"_s);
        setAccessibleName(text());
        onRestyle(this, [this] {
            setFixedWidth(px(boxSize.width()));
            setMinimumHeight(px(leastBoxHeight));  // in a window that is low for its text
            setMaximumHeight(px(boxSize.height()));
        });
    }

    QSize sizeHint() const override { return { px(boxSize.width()), px(boxSize.height()) }; }

    void setTargeted(bool targeted)
    {
        m_targeted = targeted;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        const Theme& theme = Theme::of(this);
        DirectedPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        paintBox(painter, theme);
        const qreal block = pxF(iconSize + textGap + lineHeight);
        const QRectF icon(0, (height() - block) / 2, width(), pxF(iconSize));
        Icon::paint(painter, icon, u"tag"_s, pxF(iconSize), m_targeted ? targetedText() : theme.muted, iconStroke);
        painter.setFont(sansFont(13, m_targeted ? QFont::Medium : QFont::Normal));
        painter.setPen(m_targeted ? targetedText() : theme.derived.label);
        painter.drawText(QRectF(0, icon.bottom() + pxF(textGap), width(), pxF(lineHeight)), Qt::AlignCenter, text());
    }

private:
    static QString text() { return Texts::tr("Drag a folder or image here"); }

    void paintBox(QPainter& painter, const Theme& theme) const
    {
        const qreal width = m_targeted ? 2 : 1.5;
        QPen pen(m_targeted ? targetedBorder() : theme.btnLine, width);
        if (!m_targeted) {
            pen.setDashPattern({ 6 / width, 6 / width });
            pen.setCapStyle(Qt::FlatCap);
        }
        painter.setPen(pen);
        painter.setBrush(m_targeted ? targetedFill() : theme.panel);
        painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), pxF(boxRadius), pxF(boxRadius));
    }

    bool m_targeted = false;
};

LaunchView::LaunchView(AppModel& model, QWidget* parent)
    : QWidget(parent)
    , m_box(new DropBox(this))
    , m_subfolders(buildSubfolders(model))
    , m_progress(new ProgressFoot(model, this))
{
    auto* folder = new QBButton(Texts::tr("Open Folder…"), QBButtonKind::primary);
    auto* image = new QBButton(Texts::tr("Open Image…"), QBButtonKind::secondary);
    connect(folder, &QAbstractButton::clicked, &model, &AppModel::openPanel);
    connect(image, &QAbstractButton::clicked, &model, &AppModel::openPanel);

    auto* column = new QVBoxLayout(this);
    column->setSpacing(0);
    column->addStretch();
    column->addWidget(m_box, 0, Qt::AlignHCenter);
    auto* buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(folder);
    buttons->addWidget(image);
    buttons->addStretch();
    column->addLayout(buttons);
    column->addWidget(m_subfolders, 0, Qt::AlignHCenter);
    column->addStretch();
    m_progress->setLined(false);
    onRestyle(this, [=] {
        buttons->setContentsMargins(0, px(buttonsGap), 0, 0);
        buttons->setSpacing(px(8));
        column->setContentsMargins(0, px(ringRoom), 0, 0);  // as below the switch: what is seen is centred
    });
}

// A switch, and its name, which is a part of it for the pointer.
QWidget* LaunchView::buildSubfolders(AppModel& model)
{
    Setting<bool>& setting = model.preferences().openSubfolders;
    auto* toggle = new QBSwitch;
    //: A switch: a folder that is opened is opened with all folders in it.
    auto* name = new SwitchName(Texts::tr("Open with subfolders"), toggle);
    toggle->setAccessibleName(name->text());
    toggle->setChecked(setting());
    connect(toggle, &QAbstractButton::toggled, &model, [&setting](bool on) { setting.set(on); });
    connect(&model.preferences(), &Preferences::changed, toggle, [toggle, &setting] { toggle->setChecked(setting()); });
    auto* row = new QWidget(this);
    auto* line = new QHBoxLayout(row);
    line->addWidget(toggle);
    line->addWidget(name);
    onRestyle(row, [line] {
        // Room for a focus ring, which no part of the gaps is.
        line->setContentsMargins(px(ringRoom), px(switchGap), px(ringRoom), px(ringRoom));
        line->setSpacing(px(10));
    });
    return row;
}

// Below what is centred, and no part of it: nothing moves when it appears.
void LaunchView::placeProgress()
{
    const int width = px(boxSize.width());
    const int top = m_subfolders->geometry().bottom() + 1 - px(ringRoom) + px(buttonsGap);
    m_progress->setGeometry((this->width() - width) / 2, top, width, m_progress->sizeHint().height());
}

bool LaunchView::event(QEvent* event)
{
    const bool done = QWidget::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest)
        placeProgress();
    return done;
}

void LaunchView::setTargeted(bool targeted)
{
    m_box->setTargeted(targeted);
}

void LaunchView::paintEvent(QPaintEvent*)
{
    QPainter(this).fillRect(rect(), Theme::of(this).bg);
}

}  // namespace Quorbel
