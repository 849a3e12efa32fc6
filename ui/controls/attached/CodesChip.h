// A chip at a field's right end that shows a few short codes ("de fr") and opens what they stand for.
// Thread: the main thread. Knows nothing of what the codes mean.
#pragma once

#include "ui/controls/Buttons.h"

#include <QList>

namespace Quorbel {

/// 22 points high, with a chevron; checked while what it opens is open. Up to three codes, of more the first two and
/// how many others; fewer where it gets less room.
class CodesChip final : public ThemedButton {
    Q_OBJECT

public:
    struct Code {
        QString text{};
        bool isGone = false;  ///< struck through
        bool operator==(const Code&) const = default;
    };

    explicit CodesChip(QWidget* parent = nullptr);
    void setCodes(const QList<Code>& codes);
    /// Written in amber: something behind it is edited.
    void setEdited(bool edited);
    /// In pixels, the most that it may take.
    void setRoom(int width);
    /// As it is drawn: "de fr +4".
    QString shownText() const;
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<Code> partsOf(int codes) const;
    QList<Code> shown() const;
    int widthOf(const QList<Code>& parts) const;

    QList<Code> m_codes;
    bool m_edited = false;
    int m_room = QWIDGETSIZE_MAX;
};

}  // namespace Quorbel
