// The real tool, and a note of what each start of it was given. For tests only.
#pragma once

#include "core/MetadataService.h"
#include "tests/support/Support.h"

namespace Quorbel::Test {

class RecordedTool {
public:
    RecordedTool()
    {
        writeFile(m_script,
            "open my $log, '>>', '" + m_log.toUtf8() + "'; print $log join(\"\\t\", @ARGV), \"\\n\"; close $log;\n"
                + "exec " + toolForPerl() + ", @ARGV;\n");
    }
    MetadataService service() const { return { { QUrl::fromLocalFile(m_script), realTool().perlURL } }; }
    /// The arguments of each start.
    QList<QStringList> runs() const
    {
        QList<QStringList> runs;
        for (const QString& line : QString::fromUtf8(readFile(m_log)).split(u'\n', Qt::SkipEmptyParts))
            runs.append(line.split(u'\t'));
        return runs;
    }

private:
    PhotoFolder m_folder;
    QString m_script = m_folder.path(QStringLiteral("exiftool"));
    QString m_log = m_folder.path(QStringLiteral("log"));
};

}  // namespace Quorbel::Test
