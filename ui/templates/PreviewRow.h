// One field of the preview: its name, the text as it comes out for a photo with its gaps marked, and a note.
// Thread: the main thread.
#pragma once

#include "core/templates/TemplateFill.h"

#include <QWidget>

class QTextLayout;

namespace Quorbel {

/// As high as its text needs.
class PreviewRow final : public QWidget {
    Q_OBJECT

public:
    PreviewRow(const FilledField& field, bool isFirst, QWidget* parent = nullptr);
    ~PreviewRow() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void layOut();
    qreal noteWidth() const;
    bool isNoteBelow() const;
    QRectF textBox() const;
    void paintGaps(QPainter& painter) const;

    struct Gap {
        int from = 0;
        int length = 0;
    };

    FilledField m_field;
    bool m_isFirst;
    QString m_text;
    QList<Gap> m_gaps;
    std::unique_ptr<QTextLayout> m_layout;
};

}  // namespace Quorbel
