#include "platform/browser/web_browser.h"

#include "input.h"
#include "platform/browser/address.h"
#include "platform/browser/engine_pane.h"
#include "platform/controls/controls.h"
#include "platform/failure/fault_points.h"
#include "platform/failure/runtime_error.h"
#include "platform/files/drive_path.h"
#include "platform/host/host.h"
#include "platform/text/shift_jis.h"
#include "untrusted_certificate.h"

#include <QFile>
#include <QFileInfo>
#include <QPrintPreviewWidget>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QVBoxLayout>
#include <QWebEngineHistory>
#include <QWebEngineSettings>
#include <QWebEngineView>
#include <gtest/gtest.h>

using namespace browser;

namespace
{

/// A web server that answers every request with one page, and counts the connections.
class Server : public QTcpServer
{
public:
    QByteArray body = "<title>web</title><p>web page</p>";
    int connections = 0;
    QStringList paths;
    QByteArray headers, lastRequest;

    Server()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] {
            QTcpSocket *socket = nextPendingConnection();
            ++connections;
            connect(socket, &QTcpSocket::readyRead, socket, [this, socket] {
                lastRequest = socket->readAll();
                paths.append(QString::fromLatin1(lastRequest.split(' ').value(1)));
                socket->write("HTTP/1.1 200 OK\r\n" + headers +
                              "Content-Type: text/html\r\nConnection: close\r\nContent-Length: " +
                              QByteArray::number(body.size()) + "\r\n\r\n" + body);
                socket->disconnectFromHost();
            });
        });
    }
    QString Address() const { return QStringLiteral("http://127.0.0.1:%1/").arg(serverPort()); }
};

class BrowserTest : public testing::TestWithParam<Backend>
{
protected:
    BrowserTest()
    {
        SetBackend(GetParam());
        pane = new WebBrowser(&window);
        edit = new controls::TextBox(&window);
        auto *rows = new QVBoxLayout(&window);
        rows->addWidget(edit);
        rows->addWidget(pane);
        window.resize(500, 400);
        window.show();
        QObject::connect(pane, &WebBrowser::TitleChange, pane, [this] { ++titles; });
        QObject::connect(pane, &WebBrowser::StatusTextChange, pane,
                         [this](const QString &text) { status = text; });
    }
    ~BrowserTest() override { SetBackend(Backend::Engine); }

    QString Write(const QString &name, const QString &html) const
    {
        const QString path = folder.filePath(name);
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(text::EncodePage(html));
        return files::DrivePath(path);
    }
    bool Settles() const
    {
        return input::Until([this] { return !pane->IsLoading(); });
    }
    bool Shows(const QString &wanted) const
    {
        return input::Until([&] { return pane->ShownText().contains(wanted); });
    }

    QTemporaryDir folder;
    QWidget window;
    WebBrowser *pane = nullptr;
    controls::TextBox *edit = nullptr;
    int titles = 0;
    QString status;
};

TEST_P(BrowserTest, ShowsAShiftJisPageOnceItHasAView)
{
    const QString page = Write(
        QStringLiteral("home.html"),
        QStringLiteral("<html><head><title>題</title></head><body>見出し語 ～ dictionary</body></html>"));
    pane->Navigate(page);
    EXPECT_EQ(pane->ShownText(), QString());
    EXPECT_FALSE(pane->IsLoading());
    pane->CreateView();
    EXPECT_TRUE(Shows(QStringLiteral("見出し語 ～ dictionary")));
    EXPECT_TRUE(Settles());
    EXPECT_EQ(pane->TakeNavigations(), QStringList{page});
    EXPECT_TRUE(pane->TakeNavigations().isEmpty());
    EXPECT_EQ(pane->LocationURL(), page);
    EXPECT_TRUE(input::Until([this] { return pane->LocationName() == QStringLiteral("題"); }));
    EXPECT_GT(titles, 0);
}

TEST_P(BrowserTest, TheSamePageIsReadAgainWithoutHistory)
{
    pane->CreateView();
    for (int i = 0; i < 5; ++i)
        pane->Navigate(Write(QStringLiteral("home.html"), QStringLiteral("<p>version %1</p>").arg(i)));
    EXPECT_TRUE(Shows(QStringLiteral("version 4")));
    EXPECT_TRUE(Settles());
    EXPECT_EQ(pane->ShownText().trimmed(), QStringLiteral("version 4"));
    pane->GoBack();
    EXPECT_TRUE(Settles());
    EXPECT_EQ(pane->ShownText().trimmed(), QStringLiteral("version 4"));
}

TEST_P(BrowserTest, GoesBackForwardAndHome)
{
    pane->CreateView();
    const QString first = Write(QStringLiteral("a.html"), QStringLiteral("<p>first</p>"));
    const QString second = Write(QStringLiteral("b.html"), QStringLiteral("<p>second</p>"));
    pane->GoHome();
    EXPECT_EQ(pane->LocationURL(), QString());
    pane->SetHomePage(first);
    pane->Navigate(first);
    ASSERT_TRUE(Shows(QStringLiteral("first")));
    pane->Navigate(second);
    ASSERT_TRUE(Shows(QStringLiteral("second")));
    pane->GoBack();
    EXPECT_TRUE(Shows(QStringLiteral("first")));
    pane->GoForward();
    EXPECT_TRUE(Shows(QStringLiteral("second")));
    pane->GoHome();
    EXPECT_TRUE(Shows(QStringLiteral("first")));
    Write(QStringLiteral("a.html"), QStringLiteral("<p>changed</p>"));
    pane->Refresh();
    EXPECT_TRUE(Shows(QStringLiteral("changed")));
    pane->Stop();
    EXPECT_TRUE(Settles());
}

TEST_P(BrowserTest, WhatIsMissingChangesNothing)
{
    pane->CreateView();
    const QString page = Write(QStringLiteral("home.html"), QStringLiteral("<p>stays</p>"));
    pane->Navigate(page);
    ASSERT_TRUE(Shows(QStringLiteral("stays")));
    for (const QString &address :
         {QStringLiteral("Z:\\no\\such\\page.html"), QStringLiteral("Q:\\page.html"), QString(),
          QStringLiteral("http://"), QStringLiteral("javascript:alert(1)"),
          QStringLiteral("data:text/html,x")}) {
        status.clear();
        pane->Navigate(address);
        EXPECT_EQ(status, QStringLiteral("ページが見つかりません")) << address;
    }
    EXPECT_FALSE(pane->IsLoading());
    EXPECT_EQ(pane->LocationURL(), page);
    EXPECT_EQ(pane->ShownText().trimmed(), QStringLiteral("stays"));
}

TEST_P(BrowserTest, CopiesTheSelectionAndNothingWhenThereIsNone)
{
    pane->CreateView();
    pane->Navigate(Write(QStringLiteral("home.html"), QStringLiteral("<p>copied</p>")));
    ASSERT_TRUE(Shows(QStringLiteral("copied")));
    host::SetClipboardText(QStringLiteral("before"));
    pane->ExecWB(Copy);
    EXPECT_EQ(host::ClipboardText(), QStringLiteral("before"));
    pane->ExecWB(SelectAll);
    EXPECT_TRUE(input::Until([this] { return !pane->SelectedText().isEmpty(); }));
    pane->ExecWB(Copy, 0);
    EXPECT_EQ(host::ClipboardText().trimmed(), QStringLiteral("copied"));
    EXPECT_EQ(pane->TakeCommands(), (QList<int>{12, 17, 12}));
}

TEST_P(BrowserTest, FailingCommandsRaise)
{
    EXPECT_THROW(pane->ExecWB(Print), RuntimeError);
    pane->CreateView();
    EXPECT_THROW(pane->ExecWB(99), RuntimeError);
    faults::FailNext(QStringLiteral("ExecWB"), RuntimeError::CannotOpenDatabase);
    try {
        pane->ExecWB(PrintPreview);
        FAIL() << "the failure must be raised";
    } catch (const RuntimeError &failure) {
        EXPECT_EQ(failure.number(), RuntimeError::CannotOpenDatabase);
    }
    pane->ExecWB(PrintPreview);
    EXPECT_EQ(pane->TakeCommands(), (QList<int>{6, 99, 7, 7}));
}

TEST_P(BrowserTest, FindBarFindsAndCounts)
{
    pane->CreateView();
    pane->Navigate(Write(QStringLiteral("home.html"), QStringLiteral("<p>cat dog cat bird cat</p>")));
    ASSERT_TRUE(Shows(QStringLiteral("bird")));
    input::Key(*pane, Qt::Key_F, QStringLiteral("\x06"), Qt::ControlModifier);
    auto *box = pane->findChild<controls::TextBox *>();
    ASSERT_NE(box, nullptr);
    ASSERT_TRUE(box->isVisible());
    box->SetText(QStringLiteral("cat"));
    const auto counts = [this](const QString &wanted) {
        const QList<QLabel *> labels = pane->findChildren<QLabel *>();
        return std::any_of(labels.begin(), labels.end(),
                           [&](const QLabel *label) { return label->text() == wanted; });
    };
    EXPECT_TRUE(input::Until([&] { return counts(QStringLiteral("1 / 3 件")); }));
    input::Key(*box, Qt::Key_Return, QStringLiteral("\r"));
    EXPECT_TRUE(input::Until([&] { return counts(QStringLiteral("2 / 3 件")); }));
    box->SetText(QStringLiteral("horse"));
    EXPECT_TRUE(input::Until([&] { return counts(QStringLiteral("見つかりません")); }));
    input::Key(*box, Qt::Key_Escape, QStringLiteral("\x1b"));
    EXPECT_FALSE(box->isVisible());
}

TEST_P(BrowserTest, MarkupOfALocalPageReachesNothing)
{
    Server server;
    const QString reach = server.Address();
    const QString other = QUrl::fromLocalFile(folder.filePath(QStringLiteral("other.html"))).toString();
    Write(QStringLiteral("other.html"), QStringLiteral("<p>other</p>"));
    pane->CreateView();
    pane->Navigate(Write(
        QStringLiteral("home.html"),
        QStringLiteral("<html><head><link rel=preconnect href='%1'><link rel=dns-prefetch href='%1'>"
                       "<link rel=stylesheet href='%1s.css'><link rel=prefetch href='%1p'>"
                       "<meta http-equiv=refresh content='0;url=%1r'></head>"
                       "<body onload='document.body.innerHTML=\"hacked\"'><p id=t>entry</p>"
                       "<script>document.getElementById('t').textContent='hacked'; fetch('%1f');</script>"
                       "<img src='%1i.png' onerror='document.title=\"hacked\"'>"
                       "<iframe src='%1i'></iframe><iframe src='%2'></iframe><object data='%1o'></object>"
                       "<video src='%1v' autoplay></video></body></html>")
            .arg(reach, other)));
    ASSERT_TRUE(Shows(QStringLiteral("entry")));
    host::Sleep(700);
    EXPECT_TRUE(pane->ShownText().contains(QStringLiteral("entry")));
    EXPECT_FALSE(pane->ShownText().contains(QStringLiteral("hacked")));
    EXPECT_NE(pane->LocationName(), QStringLiteral("hacked"));
    EXPECT_TRUE(pane->LocationURL().endsWith(QStringLiteral("home.html")));
    EXPECT_EQ(server.connections, 0) << server.paths.join(QLatin1Char(' '));
}

INSTANTIATE_TEST_SUITE_P(Panes, BrowserTest, testing::Values(Backend::Engine, Backend::Recording),
                         [](const auto &instance) {
                             return instance.param == Backend::Engine ? std::string("Engine")
                                                                      : std::string("Recording");
                         });

class EngineTest : public BrowserTest
{
protected:
    /// A click of the user in the middle of the page.
    void ClickInPane() const
    {
        QWidget *target = pane->findChild<QWebEngineView *>()->focusProxy();
        ASSERT_NE(target, nullptr);
        input::Click(*target, target->rect().center());
    }
};

TEST_P(EngineTest, WebPagesKeepTheirScriptAndLocalPagesStayWithout)
{
    Server server;
    server.body =
        "<title>web</title><p id=t>plain</p><script>document.getElementById('t').textContent='scripted'"
        "</script>";
    const QString local =
        Write(QStringLiteral("home.html"),
              QStringLiteral("<p id=t>quiet</p><script>document.getElementById('t').textContent="
                             "'scripted'</script>"));
    pane->CreateView();
    pane->Navigate(local);
    ASSERT_TRUE(Shows(QStringLiteral("quiet")));
    pane->Navigate(server.Address());
    EXPECT_TRUE(Shows(QStringLiteral("scripted")));
    EXPECT_EQ(pane->LocationURL(), server.Address());
    auto *view = pane->findChild<QWebEngineView *>();
    EXPECT_TRUE(input::Until([view] { return view->contextMenuPolicy() == Qt::DefaultContextMenu; }));
    EXPECT_EQ(view->page()->action(QWebEnginePage::Back)->text(), QStringLiteral("戻る"));
    EXPECT_EQ(view->page()->action(QWebEnginePage::SavePage)->text(), QStringLiteral("ページを保存..."));
    EXPECT_FALSE(view->page()->action(QWebEnginePage::ViewSource)->isVisible());
    pane->GoBack();
    EXPECT_TRUE(Shows(QStringLiteral("quiet")));
    pane->GoForward();
    EXPECT_TRUE(Shows(QStringLiteral("scripted")));
    pane->Navigate(local);
    EXPECT_TRUE(Shows(QStringLiteral("quiet")));
    EXPECT_EQ(view->contextMenuPolicy(), Qt::NoContextMenu);
}

TEST_P(EngineTest, HandlersInMarkupStayOffWhileAWebPageComes)
{
    Server silent;
    silent.disconnect();
    pane->CreateView();
    pane->Navigate(Write(
        QStringLiteral("home.html"),
        QStringLiteral("<style>@keyframes k{from{opacity:.9}to{opacity:1}}#t{animation:k 20ms infinite}"
                       "</style><p id=t onanimationiteration='this.textContent=\"hacked\"'>quiet</p>")));
    ASSERT_TRUE(Shows(QStringLiteral("quiet")));
    ASSERT_TRUE(Settles());
    pane->Navigate(silent.Address());
    host::Sleep(600);
    EXPECT_EQ(pane->ShownText().trimmed(), QStringLiteral("quiet"));
    pane->Stop();
    EXPECT_TRUE(Settles());
}

TEST_P(EngineTest, APageDoesNotTakeTheFocus)
{
    Server server;
    server.body =
        "<p>web page</p><input autofocus><script>window.focus(); document.querySelector('input').focus()"
        "</script>";
    pane->CreateView();
    window.activateWindow();
    edit->setFocus();
    edit->SetText(QStringLiteral("abc"));
    edit->CaretToEnd();
    ASSERT_TRUE(input::Until([this] { return edit->hasFocus(); }));
    pane->Navigate(server.Address());
    ASSERT_TRUE(Shows(QStringLiteral("web page")));
    host::Sleep(200);
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_FALSE(edit->hasSelectedText());
    pane->setFocus();
    EXPECT_FALSE(edit->hasFocus());
}

TEST_P(EngineTest, PrintsToAFileAndSaysWhenItCannot)
{
    EnginePane engine(&window);
    engine.Open(QUrl::fromLocalFile(
        files::HostPath(Write(QStringLiteral("home.html"), QStringLiteral("<p>印刷</p>")))));
    ASSERT_TRUE(input::Until([&] { return engine.ShownText().contains(QStringLiteral("印刷")); }));
    ASSERT_TRUE(input::Until([&] { return !engine.IsLoading(); }));
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(folder.filePath(QStringLiteral("out.pdf")));
    EXPECT_TRUE(engine.PrintTo(printer));
    EXPECT_GT(QFile(folder.filePath(QStringLiteral("out.pdf"))).size(), 500);
    printer.setOutputFileName(folder.filePath(QStringLiteral("no/such/folder/out.pdf")));
    EXPECT_FALSE(engine.PrintTo(printer));
}

TEST_P(EngineTest, APreviewShowsThePageAndLeavesThePrintersFileAlone)
{
    EnginePane engine(&window);
    engine.Open(QUrl::fromLocalFile(files::HostPath(
        Write(QStringLiteral("home.html"), QStringLiteral("<p>一</p><p style='break-before:page'>二</p>")))));
    ASSERT_TRUE(input::Until([&] { return engine.ShownText().contains(QStringLiteral("二")); }));
    ASSERT_TRUE(input::Until([&] { return !engine.IsLoading(); }));
    QPrinter printer;
    printer.setOutputFormat(QPrinter::PdfFormat);
    const QString file = folder.filePath(QStringLiteral("printed.pdf"));
    printer.setOutputFileName(file);
    ASSERT_TRUE(engine.PrintTo(printer));
    QFile printed(file);
    ASSERT_TRUE(printed.open(QIODevice::WriteOnly));
    printed.write("kept");
    printed.close();

    QPrintPreviewWidget preview(&printer, &window);
    bool succeeded = false;
    QObject::connect(&preview, &QPrintPreviewWidget::paintRequested, &preview,
                     [&](QPrinter *previewed) { succeeded = engine.PrintTo(*previewed); });
    preview.updatePreview();
    EXPECT_TRUE(succeeded);
    EXPECT_EQ(preview.pageCount(), 2);
    EXPECT_EQ(QFileInfo(file).size(), 4);
    // Printed from there it is the printer's again.
    preview.print();
    EXPECT_TRUE(succeeded);
    EXPECT_GT(QFileInfo(file).size(), 500);
}

TEST_P(EngineTest, ANewWindowOfAWebPageIsShownInThePane)
{
    Server server;
    server.body =
        "<p>web page</p><a id=a target=_blank href='/second'>link</a><script>if (location.pathname == '/')"
        "document.getElementById('a').click()</script>";
    pane->CreateView();
    pane->Navigate(server.Address());
    EXPECT_TRUE(input::Until([&] { return server.paths.contains(QStringLiteral("/second")); }));
    EXPECT_TRUE(input::Until([&] { return pane->LocationURL().endsWith(QStringLiteral("second")); }));
}

TEST_P(EngineTest, ARefreshOfAnEntryStaysOffWhileAWebPageComes)
{
    Server silent, reached;
    silent.disconnect();
    pane->CreateView();
    pane->Navigate(Write(
        QStringLiteral("home.html"),
        QStringLiteral("<meta http-equiv=refresh content='1;url=%1'><p>quiet</p>").arg(reached.Address())));
    ASSERT_TRUE(Shows(QStringLiteral("quiet")));
    ASSERT_TRUE(Settles());
    pane->Navigate(silent.Address());
    host::Sleep(2500);
    EXPECT_EQ(reached.connections, 0) << reached.paths.join(QLatin1Char(' '));
    EXPECT_TRUE(pane->LocationURL().endsWith(QStringLiteral("home.html")));
}

TEST_P(EngineTest, ARefreshOfAnEntryStaysOffWhenAWebPageDidNotCome)
{
    Server silent, reached;
    silent.disconnect();
    pane->CreateView();
    pane->Navigate(Write(
        QStringLiteral("home.html"),
        QStringLiteral("<meta http-equiv=refresh content='2;url=%1'><p>quiet</p>").arg(reached.Address())));
    ASSERT_TRUE(Shows(QStringLiteral("quiet")));
    ASSERT_TRUE(Settles());
    pane->Navigate(silent.Address());
    host::Sleep(300);
    pane->Stop();
    host::Sleep(3000);
    EXPECT_EQ(reached.connections, 0) << reached.paths.join(QLatin1Char(' '));
    EXPECT_EQ(pane->ShownText().trimmed(), QStringLiteral("quiet"));
}

TEST_P(EngineTest, AStoppedLoadLeavesTheEntryWithoutScript)
{
    Server silent;
    silent.disconnect();
    pane->CreateView();
    pane->Navigate(Write(QStringLiteral("home.html"), QStringLiteral("<p>quiet</p>")));
    ASSERT_TRUE(Shows(QStringLiteral("quiet")));
    ASSERT_TRUE(Settles());
    pane->Navigate(silent.Address());
    host::Sleep(300);
    pane->Stop();
    ASSERT_TRUE(Settles());
    auto *view = pane->findChild<QWebEngineView *>();
    EXPECT_TRUE(input::Until([view] {
        return !view->page()->settings()->testAttribute(QWebEngineSettings::JavascriptEnabled) &&
               view->contextMenuPolicy() == Qt::NoContextMenu;
    }));
}

TEST_P(EngineTest, NothingInAnEntryThatIsClickedLeadsAnywhere)
{
    Server server;
    const QString other = QUrl::fromLocalFile(folder.filePath(QStringLiteral("other.html"))).toString();
    Write(QStringLiteral("other.html"), QStringLiteral("<p>other</p>"));
    pane->CreateView();
    const QString cover = QStringLiteral(" style='position:fixed;top:0;left:0;width:100%;height:100%'");
    const QStringList traps{
        QStringLiteral("<a href='%1a'%2>x</a>").arg(server.Address(), cover),
        QStringLiteral("<a href='%1b' target=_blank%2>x</a>").arg(server.Address(), cover),
        QStringLiteral("<a href='%1c' download%2>x</a>").arg(server.Address(), cover),
        QStringLiteral("<a href='#here' ping='%1d'%2>x</a>").arg(server.Address(), cover),
        QStringLiteral("<form action='%1e'><button%2>x</button></form>").arg(server.Address(), cover),
        QStringLiteral("<form action='%1f' method=post target=_blank><button%2>x</button></form>")
            .arg(server.Address(), cover),
        QStringLiteral("<a href='%1'%2>x</a>").arg(other, cover),
        QStringLiteral("<a href=\"javascript:document.body.innerHTML='hacked'\"%1>x</a>").arg(cover),
    };
    int entries = 100;
    // Before a visit to the web, and right after coming back from one.
    for (const bool visited : {false, true}) {
        if (visited) {
            pane->Navigate(server.Address());
            ASSERT_TRUE(Shows(QStringLiteral("web page")));
            ASSERT_TRUE(Settles());
        }
        const int before = server.connections;
        for (const QString &trap : traps) {
            // Each page has a text of its own, so that it is not taken for the one before.
            const QString entry = QStringLiteral("entry %1").arg(++entries);
            pane->Navigate(Write(QStringLiteral("home.html"), QStringLiteral("<p>%1</p>").arg(entry) + trap));
            ASSERT_TRUE(Shows(entry));
            ASSERT_TRUE(Settles());
            ClickInPane();
            host::Sleep(250);
            EXPECT_TRUE(pane->ShownText().contains(entry)) << trap;
            EXPECT_TRUE(pane->LocationURL().contains(QStringLiteral("home.html"))) << trap;
        }
        EXPECT_EQ(server.connections, before) << server.paths.join(QLatin1Char(' '));
    }
}

TEST_P(EngineTest, LinksOfTheHomePageAloneLeadToTheWeb)
{
    Server server;
    const QString cover = QStringLiteral(" style='position:fixed;top:0;left:0;width:100%;height:100%'");
    const QString html = QStringLiteral("<p>links</p><a href='%1'%2>x</a>").arg(server.Address(), cover);
    const QString sites = Write(QStringLiteral("sites.html"), html);
    pane->SetHomePage(sites);
    pane->CreateView();
    pane->Navigate(Write(QStringLiteral("home.html"), html));
    ASSERT_TRUE(Shows(QStringLiteral("links")));
    ASSERT_TRUE(Settles());
    ClickInPane();
    host::Sleep(300);
    EXPECT_EQ(server.connections, 0);
    pane->GoHome();
    ASSERT_TRUE(input::Until([&] { return pane->LocationURL() == sites; }));
    ASSERT_TRUE(Settles());
    ASSERT_TRUE(input::Until([&] {
        ClickInPane();
        return input::Until([&] { return server.connections > 0; }, 500);
    }));
    EXPECT_TRUE(Shows(QStringLiteral("web page")));
    EXPECT_EQ(pane->LocationURL(), server.Address());
    pane->GoBack();
    EXPECT_TRUE(Shows(QStringLiteral("links")));
}

TEST_P(EngineTest, ACertificateThatNobodyTrustsIsRefused)
{
    QSslServer server;
    QSslConfiguration configuration = QSslConfiguration::defaultConfiguration();
    configuration.setLocalCertificate(QSslCertificate(kUntrustedCertificate));
    configuration.setPrivateKey(QSslKey(kUntrustedKey, QSsl::Ec));
    server.setSslConfiguration(configuration);
    ASSERT_TRUE(server.listen(QHostAddress::LocalHost));
    QByteArray received;
    int connections = 0;
    QObject::connect(&server, &QTcpServer::pendingConnectionAvailable, &server, [&] {
        QTcpSocket *socket = server.nextPendingConnection();
        QObject::connect(socket, &QTcpSocket::readyRead, socket,
                         [&, socket] { received += socket->readAll(); });
    });
    QObject::connect(&server, &QSslServer::startedEncryptionHandshake, &server, [&] { ++connections; });
    const QString address = QStringLiteral("https://127.0.0.1:%1/").arg(server.serverPort());
    pane->CreateView();
    pane->Navigate(address);
    EXPECT_TRUE(input::Until([&] { return connections > 0; }));
    EXPECT_TRUE(input::Until(
        [this] { return pane->ShownText().contains(QStringLiteral("127.0.0.1 の証明書を確認できません。")); },
        5'000));
    EXPECT_EQ(pane->LocationURL(), address);
    EXPECT_EQ(received, QByteArray());
}

TEST_P(EngineTest, CookiesThatAreToStayOutliveThePane)
{
    Server server;
    server.headers = "Set-Cookie: stays=1; Max-Age=3600; HttpOnly\r\nSet-Cookie: goes=2\r\n";
    const QString path = files::DrivePath(folder.filePath(QStringLiteral("cookies.dat")));
    const auto visit = [&](const QString &cookies) {
        WebBrowser visitor(&window);
        visitor.KeepCookies(cookies);
        visitor.CreateView();
        visitor.Navigate(server.Address());
        EXPECT_TRUE(input::Until([&] { return visitor.ShownText().contains(QStringLiteral("web page")); }));
        const QByteArray request = server.lastRequest;
        // The engine tells of a cookie in its own time.
        host::Sleep(1500);
        return request;
    };
    EXPECT_FALSE(visit(path).contains("Cookie:"));
    QFile file(folder.filePath(QStringLiteral("cookies.dat")));
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray kept = file.readAll();
    file.close();
    EXPECT_TRUE(kept.contains("stays=1")) << kept.toStdString();
    EXPECT_FALSE(kept.contains("goes=2")) << kept.toStdString();
    EXPECT_EQ(file.permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
    server.headers.clear();
    EXPECT_TRUE(visit(path).contains("Cookie: stays=1\r\n")) << server.lastRequest.toStdString();
    // What is no cookie file, or cannot be one, costs only the cookies.
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray("\0\xff=;;\n\n=\nx", 12));
    file.close();
    EXPECT_FALSE(visit(path).contains("stays"));
    EXPECT_FALSE(
        visit(files::DrivePath(folder.filePath(QStringLiteral("no/such/cookies.dat")))).contains("stays"));
}

TEST_P(EngineTest, WhatAFileHasKeptDoesNotOpenFiles)
{
    pane->CreateView();
    const QString page = Write(QStringLiteral("a.html"), QStringLiteral("<p>page</p>"));
    const QString url = QUrl::fromLocalFile(files::HostPath(page)).toString();
    for (const QString &address : {url, QStringLiteral(" ") + url, url.toUpper()}) {
        status.clear();
        pane->NavigateToKept(address);
        EXPECT_EQ(status, QStringLiteral("ページが見つかりません")) << address;
        EXPECT_EQ(pane->TakeNavigations(), QStringList{address});
    }
    pane->NavigateToKept(page);
    EXPECT_TRUE(Shows(QStringLiteral("page")));
}

INSTANTIATE_TEST_SUITE_P(Pane, EngineTest, testing::Values(Backend::Engine));

TEST(Address, IsUnderstoodAsTyped)
{
    EXPECT_EQ(UrlOf(QStringLiteral("Z:\\tmp\\a b.html")),
              QUrl::fromLocalFile(QStringLiteral("/tmp/a b.html")));
    EXPECT_EQ(UrlOf(QStringLiteral("/tmp/a.html")), QUrl::fromLocalFile(QStringLiteral("/tmp/a.html")));
    EXPECT_EQ(UrlOf(QStringLiteral(" example.com ")), QUrl(QStringLiteral("http://example.com")));
    EXPECT_EQ(UrlOf(QStringLiteral("https://example.com/x?q=1")),
              QUrl(QStringLiteral("https://example.com/x?q=1")));
    EXPECT_EQ(AddressOf(UrlOf(QStringLiteral("Z:\\tmp\\a b.html"))), QStringLiteral("Z:\\tmp\\a b.html"));
    EXPECT_EQ(AddressOf(QUrl(QStringLiteral("http://example.com/"))), QStringLiteral("http://example.com/"));
    EXPECT_EQ(AddressOf(QUrl()), QString());
    // People read what they can see; what they cannot stays in its code.
    for (const auto &[url, shown] : {std::pair("http://a.jp/?q=%E7%8C%AB", "http://a.jp/?q=猫"),
                                     std::pair("http://a.jp/?q=cat%20", "http://a.jp/?q=cat%20"),
                                     std::pair("http://a.jp/?q=%E3%80%80", "http://a.jp/?q=%E3%80%80"),
                                     std::pair("http://a.jp/?q=%E2%80%AEx", "http://a.jp/?q=%E2%80%AEx")}) {
        EXPECT_EQ(AddressOf(QUrl(QString::fromUtf8(url))), QString::fromUtf8(shown));
        EXPECT_EQ(UrlOf(QString::fromUtf8(shown)), QUrl(QString::fromUtf8(url)));
    }
}

} // namespace
