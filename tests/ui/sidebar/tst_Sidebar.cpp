// The list of photos over a model with fifty thousand of them, driven by keyboard and mouse.
#include "app/model/thumbnails/ThumbnailStore.h"
#include "tests/app/model/ModelFixture.h"
#include "tests/ui/UiSupport.h"
#include "ui/controls/TextFields.h"
#include "ui/sidebar/SidebarDelegate.h"
#include "ui/sidebar/SidebarList.h"
#include "ui/sidebar/SidebarView.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QFileInfo>
#include <QLabel>
#include <QLineEdit>
#include <QScrollBar>

#include <unistd.h>

using namespace Quorbel;
using namespace Quorbel::Test;
using namespace Qt::StringLiterals;

namespace {

constexpr int photoCount = 50'000;

// Says of every file that it was given that it is one, and nothing more. While the gate is shut it waits.
class QuickTool {
public:
    QuickTool()
    {
        writeFile(m_directory.filePath(u"exiftool"_s), R"perl(#!/usr/bin/perl
my ($dir) = $0 =~ m{^(.*)/};
select undef, undef, undef, 0.005 while -e "$dir/shut";
print '[', join(',', map { qq({"SourceFile":"$_"}) } grep { m{^/} && -f } @ARGV), ']';
)perl");
    }
    MetadataService service() const
    {
        return { { QUrl::fromLocalFile(m_directory.filePath(u"exiftool"_s)), realTool().perlURL } };
    }
    void setShut(bool on) const
    {
        const QString gate = m_directory.filePath(u"shut"_s);
        if (on)
            writeFile(gate, {});
        else
            QFile::remove(gate);
    }

private:
    QTemporaryDir m_directory;
};

QString nameOf(int i)
{
    return u"IMG_%1.jpg"_s.arg(i, 5, 10, QLatin1Char('0'));
}

}  // namespace

class tst_Sidebar : public QObject {
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void arrowsAndPages();
    void shiftExtendsAndControlMoves();
    void typingAName();
    void clicks();
    void doubleClickOpensAndSelectsOnce();
    void searchFiltersAndSelectAllTakesWhatIsShown();
    void searchByKeysAlone();
    void showsWhereTheKeyboardIsAmongSelectedRows();
    void unsavedEditsHoldTheSelection();
    void rowsHaveNames();
    void onlyRowsOnScreenAskForThumbnails();
    void rowsOnScreenAreReadFirst();

private:
    void press(int key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(list(), Qt::Key(key), modifiers); }
    SidebarList* list() { return m_view->list(); }
    QStringList selected() { return (*m_fixture).selected(); }
    QString primary() { return (*m_fixture).primary(); }
    int pageLength() { return list()->viewport()->height() / SidebarDelegate::pitch() - 1; }
    QPoint middleOf(int row) { return list()->visualRect(list()->model()->index(row, 0)).center(); }

    bool openUnread();

    QuickTool m_tool;
    std::unique_ptr<ModelFixture> m_fixture;
    std::unique_ptr<Stage> m_stage;
    QPointer<SidebarView> m_view;
    QList<QUrl> m_opened;
};

void tst_Sidebar::initTestCase()
{
    m_fixture = std::make_unique<ModelFixture>(m_tool.service());
    m_fixture->services.openUrl = [this](const QUrl& url) { m_opened.append(url); };
    m_fixture->relaunch();
    const QByteArray first = m_fixture->folder.path(nameOf(0)).toLocal8Bit();
    writeFile(QString::fromLocal8Bit(first), "x");
    for (int i = 1; i < photoCount; ++i) {  // links cost less than files
        const QString path = m_fixture->folder.path(nameOf(i));
        QCOMPARE(::link(first.constData(), path.toLocal8Bit().constData()), 0);
    }
    QVERIFY(openUnread());
    // Of what follows, only photos that are selected are read.
    (*m_fixture)->cancelRead();
}

// The whole folder is listed, and is being read.
bool tst_Sidebar::openUnread()
{
    (*m_fixture)->load({ m_fixture->folderURL() });
    return QTest::qWaitFor([this] { return (*m_fixture)->records().size() == photoCount; }, 60'000);
}

void tst_Sidebar::init()
{
    failOnWarnings();
    m_view = nullptr;
    m_stage = std::make_unique<Stage>();
    (*m_fixture)->setSearch({});
    m_fixture->click(nameOf(0));
    m_opened.clear();
    m_view = m_stage->add(new SidebarView(*m_fixture->model, nullptr));
    m_view->setFixedSize(288, 340);
    m_stage->show();
    list()->setFocus();
}

void tst_Sidebar::arrowsAndPages()
{
    press(Qt::Key_Down);
    QCOMPARE(selected(), QStringList{ nameOf(1) });
    press(Qt::Key_Up);
    press(Qt::Key_Up);
    QCOMPARE(primary(), nameOf(0));
    press(Qt::Key_PageDown);
    QCOMPARE(primary(), nameOf(pageLength()));
    press(Qt::Key_End);
    QCOMPARE(selected(), QStringList{ nameOf(photoCount - 1) });
    QVERIFY(list()->viewport()->rect().contains(middleOf(photoCount - 1)));
    press(Qt::Key_PageUp);
    QCOMPARE(primary(), nameOf(photoCount - 1 - pageLength()));
    press(Qt::Key_Home);
    QCOMPARE(selected(), QStringList{ nameOf(0) });
    QVERIFY(list()->viewport()->rect().contains(middleOf(0)));
}

void tst_Sidebar::shiftExtendsAndControlMoves()
{
    press(Qt::Key_Down, Qt::ShiftModifier);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1), nameOf(2) }));
    press(Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1) }));

    // Ctrl moves the cursor alone; Ctrl and Space take its row in, and out again.
    press(Qt::Key_Down, Qt::ControlModifier);
    press(Qt::Key_Down, Qt::ControlModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1) }));
    press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1), nameOf(3) }));
    press(Qt::Key_Space, Qt::ControlModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1) }));

    press(Qt::Key_End, Qt::ShiftModifier);
    QCOMPARE((*m_fixture)->selection().size(), photoCount - 3);  // from the anchor, row 3, to the end
    QCOMPARE(list()->selectionModel()->selectedRows().size(), photoCount - 3);
}

void tst_Sidebar::typingAName()
{
    QTest::keyClicks(list(), u"img_0123"_s);
    QCOMPARE(primary(), nameOf(1230));
    QVERIFY(list()->viewport()->rect().contains(middleOf(1230)));
    QTest::keyClicks(list(), u"9"_s);
    QCOMPARE(primary(), nameOf(1239));
    QTest::qWait(QApplication::keyboardInputInterval() + 100);
    press(Qt::Key_I);  // one letter goes to the next name that begins with it
    QCOMPARE(primary(), nameOf(1240));
}

void tst_Sidebar::clicks()
{
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middleOf(1));
    QCOMPARE(selected(), QStringList{ nameOf(1) });
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ShiftModifier, middleOf(3));
    QCOMPARE(selected(), (QStringList{ nameOf(1), nameOf(2), nameOf(3) }));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(2));
    QCOMPARE(selected(), (QStringList{ nameOf(1), nameOf(3) }));
    const Theme& theme = Theme::light();
    const QImage picture = list()->viewport()->grab().toImage();
    const int right = list()->viewport()->width() - 20;
    QCOMPARE(picture.pixelColor(right, middleOf(1).y()), theme.sel);
    QVERIFY(picture.pixelColor(right, middleOf(2).y()) != theme.sel);
    QTest::mouseClick(list()->viewport(), Qt::RightButton, {}, middleOf(0));
    QCOMPARE(selected(), (QStringList{ nameOf(1), nameOf(3) }));
}

void tst_Sidebar::doubleClickOpensAndSelectsOnce()
{
    int changes = 0;
    connect(m_fixture->model.get(), &AppModel::selectionChanged, list(), [&] { ++changes; });
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middleOf(2));
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, {}, middleOf(2));
    QCOMPARE(m_opened, QList<QUrl>{ m_fixture->url(nameOf(2)) });
    QCOMPARE(changes, 1);
    // With Ctrl held, the second click does not take the photo out again.
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(3));
    QTest::mouseDClick(list()->viewport(), Qt::LeftButton, Qt::ControlModifier, middleOf(3));
    QVERIFY(selected().contains(nameOf(3)));
    press(Qt::Key_Return);
    QCOMPARE(m_opened.size(), 3);
}

void tst_Sidebar::searchFiltersAndSelectAllTakesWhatIsShown()
{
    auto* search = m_view->findChild<QBTextField*>();
    QCOMPARE(search->placeholder(), u"Search"_s);
    QTest::keyClicks(search, u" img_4999 "_s);
    QCOMPARE(list()->model()->rowCount(), 10);
    auto* all = m_view->findChildren<QAbstractButton*>().first();
    QCOMPARE(all->accessibleName(), u"Select all Ctrl+A"_s);
    QTest::mouseClick(all, Qt::LeftButton);
    QCOMPARE((*m_fixture)->selection().size(), 10);
    QCOMPARE(m_view->findChild<QLabel*>()->text(), u"10 / 50000"_s);
    search->selectAll();
    press(Qt::Key_Home);
    QTest::keyClick(search, Qt::Key_Delete);
    QCOMPARE(list()->model()->rowCount(), photoCount);
}

void tst_Sidebar::searchByKeysAlone()
{
    auto* search = m_view->findChild<QLineEdit*>();
    m_view->focusSearch();
    QTest::keyClicks(search, u"nowhere"_s);
    QCOMPARE(list()->accessibleDescription(), u"No matching photos."_s);
    QVERIFY(pixelsLike(list()->parentWidget()->grab(list()->geometry()).toImage(), Theme::light().derived.label) > 10);
    QTest::keyClick(search, Qt::Key_Escape);
    QCOMPARE(list()->model()->rowCount(), photoCount);
    QCOMPARE(list()->accessibleDescription(), QString());
    QCOMPARE(search->text(), QString());
    QTest::keyClicks(search, u"img_0123"_s);
    QTest::keyClick(search, Qt::Key_Down);
    QVERIFY(list()->hasFocus());
    QCOMPARE(selected(), QStringList{ nameOf(1230) });
}

void tst_Sidebar::showsWhereTheKeyboardIsAmongSelectedRows()
{
    const auto picture = [this] { return list()->viewport()->grab().toImage(); };
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, {}, middleOf(0));
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ShiftModifier, middleOf(1));
    const QImage byMouse = picture();
    press(Qt::Key_Home);
    press(Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(selected(), (QStringList{ nameOf(0), nameOf(1) }));
    QVERIFY(picture() != byMouse);
    press(Qt::Key_Home);
    QTest::mouseClick(list()->viewport(), Qt::LeftButton, Qt::ShiftModifier, middleOf(1));
    QCOMPARE(picture(), byMouse);
}

void tst_Sidebar::unsavedEditsHoldTheSelection()
{
    QTRY_VERIFY(!(*m_fixture)->primaryRecord()->isUnread);
    (*m_fixture)->setSingle(u"title"_s, u"Unsaved"_s);
    press(Qt::Key_Down);
    QVERIFY((*m_fixture)->saveOpen());
    QCOMPARE(selected(), QStringList{ nameOf(0) });
    QCOMPARE(list()->currentIndex().row(), 0);
    (*m_fixture)->discardSaveDialog();
    QCOMPARE(selected(), QStringList{ nameOf(1) });
    QCOMPARE(list()->currentIndex().row(), 1);
}

void tst_Sidebar::rowsHaveNames()
{
    QAccessibleInterface* photos = QAccessible::queryAccessibleInterface(list());
    QVERIFY(photos);
    QCOMPARE(photos->text(QAccessible::Name), u"Photos"_s);
    QCOMPARE(photos->childCount(), photoCount);
    QAccessibleInterface* row = photos->child(41);
    QCOMPARE(row->text(QAccessible::Name), nameOf(41));
    QVERIFY(!row->state().selected);
    QVERIFY(photos->child(0)->state().selected);
    QCOMPARE(list()->model()->index(3, 0).data(Qt::ToolTipRole).toString(),
        u"Double-click to open in your default image app"_s);
}

void tst_Sidebar::onlyRowsOnScreenAskForThumbnails()
{
    QList<QString> decoded;
    ThumbnailStoreOptions options;
    options.workers = 1;
    options.decode = [&decoded](const QString& path, int, const std::stop_token&) {
        decoded.append(QFileInfo(path).fileName());  // one worker: nothing else writes
        return DecodedImage{};
    };
    options.embedded = [](const QString&, const std::stop_token&) { return QImage(); };
    ThumbnailStore thumbs(options);
    SidebarView view(*m_fixture->model, &thumbs);
    view.resize(288, 340);
    view.show();
    const int rows = view.list()->viewport()->height() / SidebarDelegate::pitch() + 1;
    QTRY_VERIFY(thumbs.entry(m_fixture->url(nameOf(rows - 1)), ThumbnailStore::Kind::small).state
        == ThumbnailStore::State::badge);
    QTest::qWait(200);
    QCOMPARE(
        thumbs.entry(m_fixture->url(nameOf(5 * rows)), ThumbnailStore::Kind::small).state, ThumbnailStore::State::none);
    view.list()->scrollToBottom();
    QTRY_COMPARE(thumbs.entry(m_fixture->url(nameOf(photoCount - 1)), ThumbnailStore::Kind::small).state,
        ThumbnailStore::State::badge);
    QCOMPARE(thumbs.entry(m_fixture->url(nameOf(photoCount / 2)), ThumbnailStore::Kind::small).state,
        ThumbnailStore::State::none);
}

void tst_Sidebar::rowsOnScreenAreReadFirst()
{
    m_tool.setShut(true);
    (*m_fixture)->closeFolder();
    QVERIFY(openUnread());
    press(Qt::Key_Home);
    list()->verticalScrollBar()->setValue(list()->verticalScrollBar()->maximum());
    QTest::qWait(300);  // what stands still for a moment is looked at
    m_tool.setShut(false);
    const auto unread = [this] {
        const QList<ImageRecord>& photos = (*m_fixture)->records();
        return std::count_if(photos.cbegin(), photos.cend(), [](const ImageRecord& photo) { return photo.isUnread; });
    };
    QTRY_VERIFY_WITH_TIMEOUT(!(*m_fixture)->record(m_fixture->url(nameOf(photoCount - 1)))->isUnread, 60'000);
    QVERIFY2(unread() > photoCount / 2, qPrintable(QString::number(unread())));
    (*m_fixture)->cancelRead();
}

QTEST_MAIN(tst_Sidebar)
#include "tst_Sidebar.moc"
