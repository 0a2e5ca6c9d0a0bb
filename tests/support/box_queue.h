#pragma once

#include "platform/dialogs/dialogs.h"

#include <QJSValue>
#include <QList>
#include <map>

class Scenario;

/// Stands in the place of every box: records it, and gives it the answer that the script queued for
/// its kind. A box without an answer fails the file and is cancelled.
class BoxQueue
{
public:
    explicit BoxQueue(Scenario &scenario) : m_scenario(scenario) {}

    /// Queues the answer to the next box of a kind: a value, or a function of the box.
    void Answer(dialogs::Box::Kind kind, const QJSValue &answer);
    dialogs::Reply Present(const dialogs::Box &box);
    /// What was shown since the last call.
    QJSValue Drain();
    /// Tells in the output of answers that no box took.
    void NoteLeftovers() const;

private:
    QJSValue Describe(const dialogs::Box &box);
    dialogs::Reply ReplyTo(const dialogs::Box &box, const QJSValue &answer, QJSValue &record);
    dialogs::Reply ReplyToMessage(const dialogs::Box &box, const QJSValue &answer, QJSValue &record);
    dialogs::Reply Unanswered(const dialogs::Box &box, QJSValue &record);

    Scenario &m_scenario;
    std::map<dialogs::Box::Kind, QJSValueList> m_answers;
    QJSValueList m_shown;
};

/// A font as scripts have it, and back; members that are missing stay as in `start`.
QJSValue FontValue(Scenario &scenario, const dialogs::FontChoice &font);
dialogs::FontChoice FontOf(const QJSValue &value, const dialogs::FontChoice &start);
