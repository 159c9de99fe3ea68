#include "text_file.h"

#include "whole_file.h"

#include <QFileInfo>
#include <QTextCodec>

#include <memory>

static const QByteArray utf_8 = QByteArrayLiteral("UTF-8");
static const QByteArray latin_1 = QByteArrayLiteral("ISO-8859-1");

QString text_form::own_line_end()
{
#ifdef Q_OS_WIN
    return QStringLiteral("\r\n");
#else
    return QStringLiteral("\n");
#endif
}

static bool is_utf_8(const QByteArray& bytes, QString& text)
{
    QTextCodec::ConverterState state;
    text = QTextCodec::codecForName(utf_8)->toUnicode(bytes.constData(), bytes.size(), &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
}

static QString decoded(const QByteArray& bytes, text_form& form)
{
    if (QTextCodec* marked = QTextCodec::codecForUtfText(bytes, nullptr)) {
        form.codec = marked->name();
        form.has_mark = true;
        return marked->toUnicode(bytes);
    }
    QString text;
    if (is_utf_8(bytes, text)) return text;
    form.codec = latin_1;
    return QString::fromLatin1(bytes);
}

static QString line_end_of(const QString& text)
{
    const int both = text.count(QLatin1String("\r\n"));
    const int feeds = text.count(QLatin1Char('\n')) - both;
    const int returns = text.count(QLatin1Char('\r')) - both;
    if (both + feeds + returns == 0) return text_form::own_line_end();
    if (both >= feeds && both >= returns) return QStringLiteral("\r\n");
    return feeds >= returns ? QStringLiteral("\n") : QStringLiteral("\r");
}

text_in_file read_text_file(const QString& path)
{
    text_in_file result;
    QFile file(path);
    const bool is_file = QFileInfo(path).isFile(); // a pipe or a device might never end
    if (!is_file || !file.open(QIODevice::ReadOnly)) return result;
    result.is_open = true;
    result.text = decoded(file.readAll(), result.form);
    result.form.line_end = line_end_of(result.text);
    if (result.text.contains(QLatin1Char('\r'))) {
        result.text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
        result.text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
    }
    return result;
}

static QByteArray encoded(QString text, const text_form& form)
{
    if (form.line_end != QLatin1String("\n")) text.replace(QLatin1Char('\n'), form.line_end);
    if (form.has_mark) text.prepend(QChar(QChar::ByteOrderMark));
    const QTextCodec* codec = QTextCodec::codecForName(form.codec);
    const std::unique_ptr<QTextEncoder> encoder(codec->makeEncoder(QTextCodec::IgnoreHeader));
    return encoder->fromUnicode(text);
}

QString write_text_file(const QString& path, const QString& text, text_form& form)
{
    if (!QTextCodec::codecForName(form.codec)->canEncode(text)) form.codec = utf_8;
    return write_whole_file(path, encoded(text, form));
}
