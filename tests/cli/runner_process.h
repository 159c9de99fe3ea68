#ifndef RUNNER_PROCESS_H
#define RUNNER_PROCESS_H

#include <QFile>
#include <QProcess>
#include <QtTest>

/// What the runner answered.
struct runner_answer {
    int status = -1; ///< exit status; -1 when it crashed or did not end in time
    QString output;
    QString errors;
};

/// Runs the runner in the working directory and waits for its end.
inline runner_answer run_runner(const QStringList& arguments)
{
    constexpr int longest_run = 120000; // ms
    QProcess runner;
    runner.start(QStringLiteral(ZARVELLO_RUNNER), arguments);
    const bool ended = runner.waitForFinished(longest_run);
    runner_answer answer;
    if (ended && runner.exitStatus() == QProcess::NormalExit) answer.status = runner.exitCode();
    answer.output = QString::fromUtf8(runner.readAllStandardOutput());
    answer.errors = QString::fromUtf8(runner.readAllStandardError());
    return answer;
}

inline void write_file(const QString& path, const QByteArray& content)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(content), qint64(content.size()));
}

inline QByteArray read_file(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(cannot be read)");
}

#endif // RUNNER_PROCESS_H
