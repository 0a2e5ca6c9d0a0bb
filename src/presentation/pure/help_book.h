#pragma once

#include "platform/text/fold.h"

#include <QByteArray>
#include <QList>
#include <QString>

/// The help: what `Help.HLP` holds, one HTML page with a `<section>` for each topic.

/// A word of the index, and how it is read, which is where it stands in the index.
struct HelpKeyword {
    QString word, reading;
    bool operator==(const HelpKeyword &) const = default;
};

struct HelpTopic {
    /// The topic of a form bears the form's name.
    QString id;
    /// A chapter begins with a topic of its own; the topics behind it belong to it.
    bool isChapter = false;
    QString title;
    QList<HelpKeyword> keywords;
    QString html;
    /// What can be read of it, the title included, folded for the search.
    text::FoldedText searchText;
};

struct HelpBook {
    QString title;
    QString style;
    QList<HelpTopic> topics;
    /// Whether the file is as it was written: undamaged to its end.
    bool isWhole = false;

    /// The place of a topic; -1 for none.
    qsizetype Find(const QString &id) const;
};

/// Reads a help file, as much of it as can be read.
HelpBook ReadHelpBook(const QByteArray &file);

/// A topic as a page. That of a chapter ends with links to the chapter's topics.
QString TopicPage(const HelpBook &book, qsizetype topic);

/// What can be read of markup: without tags, with the characters that references stand for, and with
/// a line end at the end of each block.
QString TextOfMarkup(const QString &markup);
