// What the inspector costs: a keystroke in one of thirty fields, and another photo in all of them.
//
// The yardstick is a plain form of thirty QLineEdits of the same size, given the same key or the same thirty texts,
// drawn into the same kind of window. Times are this thread's processor time; a frame at 60 Hz is 16.7 ms.
#include "tests/ui/inspector/InspectorFixture.h"
#include "ui/controls/theme/Theme.h"

#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>
#include <ctime>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int fields = 30;
constexpr int rounds = 101;
constexpr QSize windowSize(520, 1400);

// Milliseconds that this thread has spent on a processor: other programs on the machine do not count.
double threadMilliseconds()
{
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return double(now.tv_sec) * 1e3 + double(now.tv_nsec) / 1e6;
}

// Counts how often a widget was drawn: a round that draws nothing would measure half of the work.
class PaintCount final : public QObject {
public:
    explicit PaintCount(QWidget* widget) { widget->installEventFilter(this); }
    int count = 0;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        count += event->type() == QEvent::Paint ? 1 : 0;
        return QObject::eventFilter(watched, event);
    }
};

// The median of so many rounds, in milliseconds. What a round posts (layout, painting of what changed) belongs to it.
template <typename Job>
double median(QWidget* window, QWidget* drawn, Job job)
{
    const PaintCount paints(drawn);
    QList<double> all;
    for (int round = 0; round < rounds; ++round) {
        const double start = threadMilliseconds();
        job(round);
        for (int pass = 0; pass < 4; ++pass)
            QCoreApplication::sendPostedEvents();
        // The platform would ask for the picture a few milliseconds later, outside of the round.
        QEvent paint(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(window, &paint);
        all.append(threadMilliseconds() - start);
    }
    if (paints.count < rounds)
        qFatal("only %d of %d rounds drew the field", paints.count, rounds);
    std::sort(all.begin(), all.end());
    return all.at(all.size() / 2);
}

void report(const char* name, double milliseconds, double baseline, double budget)
{
    std::printf("%-34s %7.3f ms  %5.2f of the plain form (%.3f ms)  %5.1f%% of its budget of %.1f ms\n", name,
        milliseconds, milliseconds / baseline, baseline, 100 * milliseconds / budget, budget);
}

// The assignments of a photo that has a value in every one of thirty fields: the schema's, all but one.
QStringList fullPhoto(const QString& suffix)
{
    QStringList arguments;
    for (const FieldSpec& field : FieldSchema::all()) {
        const QString tag = field.writeTags.value(0);
        if (field.id == u"offsetDigitized"_s)
            continue;
        if (field.id == u"urgency"_s)
            arguments.append(u"-%1=%2"_s.arg(tag, suffix));
        else if (field.kind == FieldKind::text || field.kind == FieldKind::multiline)
            arguments.append(u"-%1=%2 of %3"_s.arg(tag, field.label, suffix));
        else if (field.kind == FieldKind::keywords)
            for (int i = 0; i < 8; ++i)
                arguments.append(u"-%1=word%2 %3"_s.arg(tag).arg(i).arg(suffix));
        else if (field.kind == FieldKind::date)
            arguments.append(u"-%1=2024:10:1%2 17:48:00"_s.arg(tag, suffix));
    }
    const QString degrees = u"47.3%1"_s.arg(suffix);
    return arguments << u"-XMP:Rating="_s + suffix << u"-EXIF:OffsetTimeOriginal=+0%1:00"_s.arg(suffix)
                     << u"-GPSLatitude="_s + degrees << u"-GPSLatitudeRef=N"_s << u"-GPSLongitude=8.5"_s
                     << u"-GPSLongitudeRef=E"_s << u"-EXIF:Model=Camera "_s + suffix << u"-EXIF:ISO=200"_s;
}

// Thirty line edits with labels, in a scroll area as the inspector's form is.
struct PlainForm {
    PlainForm()
    {
        auto* column = new QVBoxLayout(&window);
        auto* scroll = new QScrollArea;
        auto* form = new QWidget;
        auto* rows = new QFormLayout(form);
        for (int i = 0; i < fields; ++i) {
            edits.append(new QLineEdit);
            rows->addRow(u"Field %1"_s.arg(i), edits.last());
        }
        scroll->setWidget(form);
        scroll->setWidgetResizable(true);
        column->addWidget(scroll);
        window.resize(windowSize);
        window.show();
    }
    QWidget window;
    QList<QLineEdit*> edits{};
};

}  // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QUORBEL_REDUCE_MOTION", "1");
    const QApplication app(argc, argv);

    PlainForm plain;
    if (!QTest::qWaitForWindowExposed(&plain.window))
        return 1;
    const double plainKey = median(&plain.window, plain.edits.at(0), [&](int round) {
        QTest::sendKeyEvent(QTest::Click, plain.edits.at(0), round % 8 ? Qt::Key_A : Qt::Key_Backspace, u"a"_s, {});
    });
    const double plainPhoto = median(&plain.window, plain.edits.at(0), [&](int round) {
        for (QLineEdit* edit : std::as_const(plain.edits))
            edit->setText(round % 2 ? u"A text of one photo"_s : u"Another text of the other"_s);
    });
    plain.window.hide();

    InspectorFixture f;
    f.add(u"a.jpg"_s, fullPhoto(u"1"_s));
    f.add(u"b.jpg"_s, fullPhoto(u"2"_s));
    if (!f.open(windowSize))
        return 1;
    int shown = 0;
    for (const FieldSpec& field : FieldSchema::all())
        shown += f.row(field.id) ? 1 : 0;
    std::printf("%d fields shown, medians of %d\n", shown, rounds);
    if (shown < fields)
        return 1;

    const double photo = median(
        f.window.get(), f.row(u"title"_s)->input(), [&](int round) { f.click(round % 2 ? u"a.jpg"_s : u"b.jpg"_s); });
    report("another photo", photo, plainPhoto, 1000.0 / 60);
    f.click(u"a.jpg"_s);
    for (const QString& id : { u"title"_s, u"description"_s, u"urgency"_s }) {
        QWidget* input = f.row(id)->input();
        input->setFocus();
        const double key = median(f.window.get(), input, [&](int round) {
            const bool adds = round % 8;
            QTest::sendKeyEvent(QTest::Click, input, adds ? Qt::Key_A : Qt::Key_Backspace, adds ? u"a"_s : u""_s, {});
        });
        report(("a key in " + id.toLatin1()).constData(), key, plainKey, 1000.0 / 60 / 3);
    }
    f.model().discardSaveDialog();
    f.model().selectAllPhotos();
    f.row(u"title"_s)->input()->setFocus();
    const double key = median(f.window.get(), f.row(u"title"_s)->input(),
        [&](int) { QTest::sendKeyEvent(QTest::Click, f.row(u"title"_s)->input(), Qt::Key_A, u"a"_s, {}); });
    report("a key in title, two photos", key, plainKey, 1000.0 / 60 / 3);
    return 0;
}
