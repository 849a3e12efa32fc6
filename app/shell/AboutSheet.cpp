#include "app/shell/AboutSheet.h"

#include "core/language/Texts.h"
#include "ui/controls/Buttons.h"
#include "ui/controls/Labels.h"
#include "ui/controls/theme/Metrics.h"
#include "ui/sheets/SheetParts.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace Quorbel {

using namespace Qt::StringLiterals;

namespace {

QString version()
{
    //: %1 is a version like 1.2, %2 a number that says which build of it this is.
    return Texts::tr("Version %1 (build %2)")
        .arg(QString::fromUtf8(QUORBEL_VERSION), QString::fromUtf8(QUORBEL_BUILD_NUMBER));
}

QStringList licences()
{
    return {
        Texts::tr("© 2026 The Quorbel developers. Free software under the MIT License."),
        Texts::tr("Reads and writes photos with ExifTool by Phil Harvey (Artistic License or GPL). Built with "
                  "Qt %1 (LGPL 3), LibRaw (LGPL 2.1 or CDDL), libheif (LGPL 3), libjxl (BSD), OpenJPEG (BSD) "
                  "and Little CMS (MIT).")
            .arg(QString::fromLatin1(qVersion())),
    };
}

}  // namespace

AboutSheet::AboutSheet(const QString& credits, QWidget* parent)
    : SheetBody(parent)
{
    auto* column = new QVBoxLayout(this);
    column->addWidget(new ThemedLabel(u"Quorbel"_s, TextRole::text, 20, QFont::DemiBold));
    column->addWidget(new ThemedLabel(version(), TextRole::label, 12));
    for (const QString& text : licences())
        column->addWidget(ThemedLabel::wrapped(text, TextRole::text, 13));
    if (!credits.isEmpty())
        column->addWidget(ThemedLabel::wrapped(credits, TextRole::label, 12));
    auto* ok = new QBButton(Texts::tr("OK"), QBButtonKind::primary);
    connect(ok, &QAbstractButton::clicked, this, &AboutSheet::closed);
    QHBoxLayout* buttons = sheetButtonRow(this, { ok });
    column->addLayout(buttons);
    frameSheet(this, column);
    onRestyle(this, [column, buttons] {
        column->setSpacing(px(8));
        buttons->setContentsMargins(0, px(14), 0, 0);
    });
}

QString AboutSheet::title() const
{
    return Texts::tr("About Quorbel");
}

}  // namespace Quorbel
