#include "functions.h"
#include "platform/browser/web_browser.h"
#include "platform/controls/handler.h"
#include "platform/text/shift_jis.h"
#include "presentation/frmFind.h"
#include "script_error.h"

#include <QFile>

namespace
{

browser::WebBrowser *Pane()
{
    const frmFind *window = MainWindow();
    return window ? window->WebBrowser1 : nullptr;
}

QString PageText(const QString &applicationFolder)
{
    QFile page(applicationFolder + QStringLiteral("/home.html"));
    if (!page.open(QIODevice::ReadOnly))
        throw ScriptError(QStringLiteral("page: home.html cannot be read: %1").arg(page.errorString()));
    return text::Decode(page.readAll());
}

/// The pane with what was asked for last: a load in progress is waited for where that is safe.
const browser::WebBrowser *SettledPane(Scenario &scenario)
{
    if (Pane() && Pane()->IsLoading() && controls::RunningHandlers() == 0)
        scenario.Program().Settle();
    return Pane();
}

} // namespace

void AddPaneFunctions(FunctionTable &table)
{
    table[QStringLiteral("page")] = [](Scenario &scenario, const Arguments &) {
        return QJSValue(PageText(scenario.Folder().ApplicationFolder()));
    };
    table[QStringLiteral("navigations")] = [](Scenario &scenario, const Arguments &) {
        return scenario.Value(Pane() ? Pane()->TakeNavigations() : QStringList());
    };
    table[QStringLiteral("paneText")] = [](Scenario &scenario, const Arguments &) {
        const browser::WebBrowser *pane = SettledPane(scenario);
        return QJSValue(pane ? pane->ShownText() : QString());
    };
    table[QStringLiteral("paneAddress")] = [](Scenario &scenario, const Arguments &) {
        const browser::WebBrowser *pane = SettledPane(scenario);
        return QJSValue(pane ? pane->LocationURL() : QString());
    };
    table[QStringLiteral("execs")] = [](Scenario &scenario, const Arguments &) {
        return scenario.Value(Pane() ? Pane()->TakeCommands() : QList<int>());
    };
}
