#pragma once

#include <QString>
#include <QStringList>

/// The generated pages. Record text goes into them as it stands: markup in a record is live.

/// What an entry shows of a record; the texts are trimmed where they are used.
struct EntryFields {
    QString word, pronunciation, description, example;
};

/// The plain line of one entry, as the incremental search shows it.
QString PlainEntryLine(const EntryFields &record);

/// The text that closes a page of entries.
QString PageEnd();

/// The two lines of the blank page, or of one with a message.
QStringList MessagePageLines(const QString &message);

/// The eight lines of the default page header.
QStringList DefaultPageHeader();

/// The pronunciation in its brackets with a blank in front; empty when there is none.
QString PronunciationText(const QString &pronunciation);
/// The label in front of examples; empty when the (trimmed) example is empty.
QString ExampleLabel(const QString &example);
