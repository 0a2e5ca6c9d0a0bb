#include "functions.h"
#include "host_paths.h"
#include "platform/files/file_operations.h"
#include "platform/text/shift_jis.h"
#include "script_error.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringDecoder>
#include <QStringEncoder>
#include <optional>

namespace
{

QByteArray ReadWhole(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ScriptError(QStringLiteral("%1 cannot be read: %2").arg(path, file.errorString()));
    return file.readAll();
}

void WriteWhole(const QString &path, const QByteArray &bytes)
{
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size() || !file.flush())
        throw ScriptError(QStringLiteral("%1 cannot be written: %2").arg(path, file.errorString()));
}

QString HostPathArgument(const Arguments &arguments) { return HostPathOf(arguments.Text(0)); }

/// The encoding of a name; none for Shift_JIS. A byte order mark is text like any other.
std::optional<QStringConverter::Encoding> EncodingArgument(const Arguments &arguments, int index)
{
    const QString name = arguments.Text(index, QStringLiteral("Shift_JIS")).toLower();
    if (name == QLatin1String("shift_jis"))
        return std::nullopt;
    if (name == QLatin1String("utf-8"))
        return QStringConverter::Utf8;
    if (name == QLatin1String("utf-16le"))
        return QStringConverter::Utf16LE;
    if (name == QLatin1String("utf-16be"))
        return QStringConverter::Utf16BE;
    arguments.Refuse(index, QStringLiteral("\"Shift_JIS\", \"UTF-8\", \"UTF-16LE\" or \"UTF-16BE\""));
}

QString DecodeText(const QByteArray &bytes, std::optional<QStringConverter::Encoding> encoding)
{
    if (!encoding)
        return text::Decode(bytes);
    QStringDecoder decoder(*encoding, QStringConverter::Flag::ConvertInitialBom);
    return decoder.decode(bytes);
}

QByteArray EncodeText(const QString &text, std::optional<QStringConverter::Encoding> encoding)
{
    if (!encoding)
        return text::EncodePlain(text);
    QStringEncoder encoder(*encoding);
    return encoder.encode(text);
}

QByteArray BytesOf(const QString &characters)
{
    for (const QChar c : characters)
        if (c.unicode() > 0xFF)
            throw ScriptError(QStringLiteral("writeBytes: a character above 255 is no byte"));
    return characters.toLatin1();
}

void RemovePath(const QString &path)
{
    const QFileInfo info(path);
    const bool removed =
        info.isDir() && !info.isSymLink() ? QDir(path).removeRecursively() : QFile::remove(path);
    if (!removed && info.exists())
        throw ScriptError(QStringLiteral("%1 cannot be removed").arg(path));
}

void TakeWriteAccess(const QString &path)
{
    constexpr QFile::Permissions writing =
        QFile::WriteOwner | QFile::WriteUser | QFile::WriteGroup | QFile::WriteOther;
    if (!QFile::setPermissions(path, QFile::permissions(path) & ~writing))
        throw ScriptError(QStringLiteral("%1 cannot be made read-only").arg(path));
    // Permission bits do not bind root.
    files::MarkReadOnly(path);
}

} // namespace

void AddFolderFunctions(FunctionTable &table)
{
    table[QStringLiteral("appFile")] = [](Scenario &scenario, const Arguments &arguments) {
        const QString name = arguments.Text(0, QString());
        const QString folder = scenario.Folder().ApplicationFolder();
        return QJSValue(name.isEmpty() ? folder : folder + u'/' + name);
    };
    table[QStringLiteral("tempDir")] = [](Scenario &scenario, const Arguments &) {
        return QJSValue(scenario.Folder().ScriptFolder());
    };
    table[QStringLiteral("drivePath")] = [](Scenario &, const Arguments &arguments) {
        return QJSValue(DrivePathOf(arguments.Text(0)));
    };
    table[QStringLiteral("exists")] = [](Scenario &, const Arguments &arguments) {
        return QJSValue(QFileInfo::exists(HostPathArgument(arguments)));
    };
    table[QStringLiteral("size")] = [](Scenario &, const Arguments &arguments) {
        const QFileInfo info(HostPathArgument(arguments));
        if (!info.exists())
            throw ScriptError(QStringLiteral("size: there is no file %1").arg(info.filePath()));
        return QJSValue(static_cast<double>(info.size()));
    };
    table[QStringLiteral("remove")] = [](Scenario &, const Arguments &arguments) {
        RemovePath(HostPathArgument(arguments));
        return QJSValue();
    };
    table[QStringLiteral("readBytes")] = [](Scenario &, const Arguments &arguments) {
        return QJSValue(QString::fromLatin1(ReadWhole(HostPathArgument(arguments))));
    };
    table[QStringLiteral("writeBytes")] = [](Scenario &, const Arguments &arguments) {
        WriteWhole(HostPathArgument(arguments), BytesOf(arguments.Text(1)));
        return QJSValue();
    };
    table[QStringLiteral("mkdir")] = [](Scenario &, const Arguments &arguments) {
        if (!QDir().mkpath(HostPathArgument(arguments)))
            throw ScriptError(QStringLiteral("mkdir: %1 cannot be made").arg(arguments.Text(0)));
        return QJSValue();
    };
    table[QStringLiteral("readText")] = [](Scenario &, const Arguments &arguments) {
        const auto encoding = EncodingArgument(arguments, 1);
        return QJSValue(DecodeText(ReadWhole(HostPathArgument(arguments)), encoding));
    };
    table[QStringLiteral("writeText")] = [](Scenario &, const Arguments &arguments) {
        WriteWhole(HostPathArgument(arguments),
                   EncodeText(arguments.Text(1), EncodingArgument(arguments, 2)));
        return QJSValue();
    };
    table[QStringLiteral("makeReadOnly")] = [](Scenario &, const Arguments &arguments) {
        TakeWriteAccess(HostPathArgument(arguments));
        return QJSValue();
    };
}
