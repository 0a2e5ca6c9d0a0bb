#include "box_queue.h"

#include "comparison.h"
#include "host_paths.h"
#include "scenario.h"
#include "script_error.h"

using dialogs::Box;
using dialogs::Reply;

namespace
{

QString KindName(Box::Kind kind)
{
    switch (kind) {
    case Box::Kind::Message: return QStringLiteral("message");
    case Box::Kind::Input: return QStringLiteral("input");
    case Box::Kind::File: return QStringLiteral("file");
    case Box::Kind::Folder: return QStringLiteral("folder");
    case Box::Kind::Font: return QStringLiteral("font");
    case Box::Kind::Color: return QStringLiteral("color");
    }
    return {};
}

/// The button that ends a box with the least effect.
QString HarmlessButton(const Box &box)
{
    for (const int answer : {dialogs::Cancel, dialogs::No})
        if (box.buttons.contains(dialogs::ButtonWord(answer)))
            return dialogs::ButtonWord(answer);
    return box.buttons.value(0, dialogs::ButtonWord(dialogs::OK));
}

QString DefaultButton(const Box &box)
{
    return box.defaultButton.isEmpty() ? box.buttons.value(0, dialogs::ButtonWord(dialogs::OK))
                                       : box.defaultButton;
}

Reply Ended(const QString &word)
{
    Reply reply;
    reply.accepted = word != dialogs::ButtonWord(dialogs::Cancel);
    reply.answer = dialogs::AnswerOf(word);
    return reply;
}

QString AnswerMember() { return QStringLiteral("answer"); }

} // namespace

void BoxQueue::Answer(Box::Kind kind, const QJSValue &answer) { m_answers[kind].append(answer); }

QJSValue BoxQueue::Drain()
{
    QJSValue list = m_scenario.Engine().newArray(static_cast<quint32>(m_shown.size()));
    for (qsizetype i = 0; i < m_shown.size(); ++i)
        list.setProperty(static_cast<quint32>(i), m_shown[i]);
    m_shown.clear();
    return list;
}

void BoxQueue::NoteLeftovers() const
{
    for (const auto &[kind, answers] : m_answers)
        for (const QJSValue &answer : answers)
            m_scenario.Note(
                QStringLiteral("no %1 box took the answer %2").arg(KindName(kind), Literal(answer)));
}

QJSValue BoxQueue::Describe(const Box &box)
{
    QJSValue record = m_scenario.Engine().newObject();
    const auto set = [&](const QString &name, const auto &value) {
        record.setProperty(name, m_scenario.Value(value));
    };
    set(QStringLiteral("kind"), KindName(box.kind));
    set(QStringLiteral("title"), box.title);
    set(QStringLiteral("text"), box.text);
    set(QStringLiteral("icon"), box.icon);
    set(QStringLiteral("buttons"), box.buttons);
    set(QStringLiteral("defaultButton"), box.defaultButton);
    set(QStringLiteral("beep"), box.beep);
    switch (box.kind) {
    case Box::Kind::Message: break;
    case Box::Kind::Input:
        set(QStringLiteral("prompt"), box.text);
        set(QStringLiteral("defaultText"), box.defaultText);
        break;
    case Box::Kind::File:
        set(QStringLiteral("defaultText"), box.defaultText);
        set(QStringLiteral("filter"), box.filter);
        set(QStringLiteral("filterIndex"), box.filterIndex);
        set(QStringLiteral("mustExist"), box.mustExist);
        set(QStringLiteral("createPrompt"), box.createPrompt);
        set(QStringLiteral("save"), box.save);
        break;
    case Box::Kind::Folder: set(QStringLiteral("folder"), box.folder); break;
    case Box::Kind::Font: record.setProperty(QStringLiteral("font"), FontValue(m_scenario, box.font)); break;
    case Box::Kind::Color: set(QStringLiteral("color"), box.color); break;
    }
    return record;
}

Reply BoxQueue::Present(const Box &box)
{
    QJSValue record = Describe(box);
    m_shown.append(record);
    QJSValueList &answers = m_answers[box.kind];
    if (answers.isEmpty())
        return Unanswered(box, record);
    QJSValue answer = answers.takeFirst();
    if (answer.isCallable()) {
        const std::optional<QJSValue> returned =
            m_scenario.CallBack(answer, {record}, QStringLiteral("the answer to a box"));
        // A failed function has failed the file already; the box still has to end.
        answer = returned.value_or(QJSValue());
    }
    try {
        return ReplyTo(box, answer, record);
    } catch (const std::exception &error) {
        m_scenario.Fail(QStringLiteral("box \"%1\": %2").arg(box.title, QString::fromUtf8(error.what())));
        record.setProperty(AnswerMember(), QJSValue(QJSValue::NullValue));
        return Ended(HarmlessButton(box));
    }
}

Reply BoxQueue::Unanswered(const Box &box, QJSValue &record)
{
    m_scenario.Fail(box.defaultHandling
                        ? QStringLiteral("a failure went to the default handling: ") + box.text
                        : QStringLiteral("no answer to a %1 box: %2").arg(KindName(box.kind), box.title),
                    {QStringLiteral("title: ") + box.title, QStringLiteral("text: ") + box.text});
    if (box.kind != Box::Kind::Message) {
        record.setProperty(AnswerMember(), QJSValue(QJSValue::NullValue));
        return {};
    }
    return ReplyToMessage(box, QJSValue(HarmlessButton(box)), record);
}

Reply BoxQueue::ReplyToMessage(const Box &box, const QJSValue &answer, QJSValue &record)
{
    const QString word = answer.isUndefined() ? DefaultButton(box) : answer.toString();
    if (!box.buttons.contains(word))
        throw ScriptError(QStringLiteral("it has no button \"%1\" but %2")
                              .arg(word, box.buttons.join(QStringLiteral(", "))));
    record.setProperty(AnswerMember(), word);
    return Ended(word);
}

Reply BoxQueue::ReplyTo(const Box &box, const QJSValue &answer, QJSValue &record)
{
    if (box.kind == Box::Kind::Message)
        return ReplyToMessage(box, answer, record);
    Reply reply;
    reply.accepted = true;
    if (box.kind == Box::Kind::Input && answer.isUndefined()) {
        record.setProperty(AnswerMember(), box.defaultText);
        reply.text = box.defaultText;
        return reply;
    }
    if (answer.isNull() || answer.isUndefined()) {
        record.setProperty(AnswerMember(), QJSValue(QJSValue::NullValue));
        return {};
    }
    record.setProperty(AnswerMember(), answer);
    switch (box.kind) {
    case Box::Kind::Message:
    case Box::Kind::Input: reply.text = answer.toString(); break;
    case Box::Kind::File:
    case Box::Kind::Folder: reply.text = DrivePathOf(answer.toString()); break;
    case Box::Kind::Font: reply.font = FontOf(answer, box.font); break;
    case Box::Kind::Color: reply.color = answer.toInt(); break;
    }
    return reply;
}

QJSValue FontValue(Scenario &scenario, const dialogs::FontChoice &font)
{
    QJSValue value = scenario.Engine().newObject();
    value.setProperty(QStringLiteral("name"), font.name);
    value.setProperty(QStringLiteral("size"), font.size);
    value.setProperty(QStringLiteral("color"), font.color);
    value.setProperty(QStringLiteral("bold"), font.bold);
    value.setProperty(QStringLiteral("italic"), font.italic);
    value.setProperty(QStringLiteral("strikeout"), font.strikeout);
    value.setProperty(QStringLiteral("underline"), font.underline);
    return value;
}

dialogs::FontChoice FontOf(const QJSValue &value, const dialogs::FontChoice &start)
{
    dialogs::FontChoice font = start;
    const auto member = [&](const char *name) { return value.property(QString::fromLatin1(name)); };
    const auto flag = [&](const char *name, bool &target) {
        if (!member(name).isUndefined())
            target = member(name).toBool();
    };
    if (!member("name").isUndefined())
        font.name = member("name").toString();
    if (!member("size").isUndefined())
        font.size = member("size").toInt();
    if (!member("color").isUndefined())
        font.color = member("color").toInt();
    flag("bold", font.bold);
    flag("italic", font.italic);
    flag("strikeout", font.strikeout);
    flag("underline", font.underline);
    return font;
}
