#include "core/renaming/FolderMover.h"

#include "core/language/Texts.h"
#include "core/save/FileMove.h"
#include "core/text/FileNaming.h"

#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <algorithm>
#include <cerrno>

namespace Quorbel {

using namespace Qt::StringLiterals;

QString FolderMover::between(qsizetype file) const
{
    return u".quorbel-%1-%2.renaming"_s.arg(m_mark).arg(file);
}

FolderMover::Outcome FolderMover::move(
    const QList<FileRenaming>& files, const std::function<bool(qsizetype)>& goesOn) const
{
    QSet<QString> wanted;
    for (const FileRenaming& file : files)
        if (file.from != file.to)
            wanted.insert(file.to.toLower());
    const auto standsInTheWay = [&wanted](const FileRenaming& file) {
        return file.from != file.to && wanted.contains(file.from.toLower());
    };
    QList<Step> done;
    QString problem;
    qsizetype photos = 0;
    bool isGivenUp = false;
    const auto isNext = [&] {
        isGivenUp = isGivenUp || (goesOn && !goesOn(photos));
        return problem.isEmpty() && !isGivenUp;
    };
    // Out of another one's way, or, where names do not differ by case, out of its own.
    for (qsizetype i = 0; i < files.size() && problem.isEmpty(); ++i)
        if (standsInTheWay(files.at(i)) && isNext())
            problem = moveOne(done, files.at(i).from, between(i));
    for (qsizetype i = 0; i < files.size() && problem.isEmpty() && !isGivenUp; ++i) {
        const FileRenaming& file = files.at(i);
        if (file.from == file.to || !isNext())
            continue;
        problem = moveOne(done, standsInTheWay(file) ? between(i) : file.from, file.to);
        photos += file.isPhoto ? 1 : 0;
    }
    if (problem.isEmpty() && !isGivenUp)
        return {};
    return { moveBack(done) ? End::undone : End::stuck, problem };
}

// Why it could not be moved; "" where it was.
QString FolderMover::moveOne(QList<Step>& done, const QString& from, const QString& to) const
{
    const int error = FileMove::withoutReplacing(path(from), path(to));
    if (error == EEXIST)
        return Texts::tr("“%1” is there already").arg(to);
    if (error)
        return Texts::tr("“%1”: %2").arg(from, qt_error_string(error));
    done.append({ from, to });
    return {};
}

// Whether every file has its old name.
bool FolderMover::moveBack(const QList<Step>& done) const
{
    QHash<QString, QString> lost;  // a file's old name, by the one on its way that it could not leave
    bool isBack = true;
    for (auto step = done.crbegin(); step != done.crend(); ++step) {
        if (FileMove::withoutReplacing(path(step->to), path(step->from)) == 0)
            continue;
        isBack = false;
        if (step->to.startsWith(u".quorbel-"_s + m_mark))
            lost.insert(step->to, step->from);
    }
    for (auto file = lost.cbegin(); file != lost.cend(); ++file)
        findName(file.key(), *file);
    return isBack;
}

// Somebody took the old name meanwhile: another one like it is better than the one on the way.
bool FolderMover::findName(const QString& between, const QString& old) const
{
    constexpr int mostTries = 1000;
    const QString base = QFileInfo(old).completeBaseName();
    const QString suffix = old.sliced(base.size());
    for (int number = 2; number < mostTries; ++number) {
        const QString name = base + u'-' + QString::number(number) + suffix;
        if (const int error = FileMove::withoutReplacing(path(between), path(name)); error != EEXIST)
            return error == 0;
    }
    return false;
}

}  // namespace Quorbel
