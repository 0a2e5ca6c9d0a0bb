#include "functions.h"
#include "platform/failure/fault_points.h"
#include "platform/files/application_folder.h"
#include "platform/files/file_operations.h"
#include "platform/host/host.h"
#include "speech_record.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>

namespace
{

/// Sets what stands in for the machine's facts; facts that are not given stay the machine's own.
void SetFacts(const Arguments &arguments)
{
    host::SetFacts(nullptr);
    if (arguments.IsNothing(0))
        return;
    static host::SystemFacts facts;
    facts = host::Facts();
    const auto given = [&](const char *name, auto take) {
        const QJSValue value = arguments.Option(0, QString::fromLatin1(name));
        if (!value.isUndefined())
            take(value);
    };
    given("version", [](const QJSValue &value) { facts.version = value.toString(); });
    given("build", [](const QJSValue &value) { facts.build = value.toString(); });
    given("platform", [](const QJSValue &value) { facts.platform = value.toString(); });
    given("processor", [](const QJSValue &value) { facts.processor = value.toInt(); });
    given("memory", [](const QJSValue &value) { facts.memory = static_cast<qint64>(value.toNumber()); });
    given("load", [](const QJSValue &value) { facts.load = value.toInt(); });
    host::SetFacts(&facts);
}

QJSValue SpeechCalls(Scenario &scenario)
{
    QJSValue list = scenario.Engine().newArray();
    quint32 i = 0;
    for (const SpeechCall &call : TakeSpeech()) {
        QJSValue value = scenario.Engine().newObject();
        value.setProperty(QStringLiteral("call"), call.call);
        value.setProperty(QStringLiteral("args"), scenario.Value(call.arguments));
        list.setProperty(i++, value);
    }
    return list;
}

void PutImageOnClipboard()
{
    constexpr int side = 8;
    QImage image(side, side, QImage::Format_RGB32);
    image.fill(Qt::red);
    QGuiApplication::clipboard()->setImage(image);
}

} // namespace

void AddMachineFunctions(FunctionTable &table)
{
    table[QStringLiteral("atYield")] = [](Scenario &scenario, const Arguments &arguments) {
        if (arguments.Integer(0) < 1)
            arguments.Refuse(0, QStringLiteral("1 or more"));
        scenario.Yields().RunAt(arguments.Integer(0), arguments.Function(1));
        return QJSValue();
    };
    table[QStringLiteral("clipboard")] = [](Scenario &, const Arguments &) {
        return host::ClipboardHasText() ? QJSValue(host::ClipboardText()) : QJSValue(QJSValue::NullValue);
    };
    table[QStringLiteral("setClipboard")] = [](Scenario &, const Arguments &arguments) {
        if (arguments.IsNothing(0))
            QGuiApplication::clipboard()->clear();
        else
            QGuiApplication::clipboard()->setText(arguments.Text(0));
        return QJSValue();
    };
    table[QStringLiteral("setClipboardImage")] = [](Scenario &, const Arguments &) {
        PutImageOnClipboard();
        return QJSValue();
    };
    table[QStringLiteral("speech")] = [](Scenario &scenario, const Arguments &) {
        return SpeechCalls(scenario);
    };
    table[QStringLiteral("failNext")] = [](Scenario &, const Arguments &arguments) {
        faults::FailNext(arguments.Text(0), arguments.Integer(1));
        return QJSValue();
    };
    table[QStringLiteral("tempFolder")] = [](Scenario &, const Arguments &) {
        return QJSValue(files::TempFolder());
    };
    table[QStringLiteral("freeSpace")] = [](Scenario &, const Arguments &arguments) {
        files::SetFreeBytes(arguments.IsNothing(0) ? -1 : static_cast<qint64>(arguments.Number(0)));
        return QJSValue();
    };
    table[QStringLiteral("system")] = [](Scenario &, const Arguments &arguments) {
        SetFacts(arguments);
        return QJSValue();
    };
}
