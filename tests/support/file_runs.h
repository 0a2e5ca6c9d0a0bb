#pragma once

#include <QString>
#include <QStringList>

/// Runs each file in a process of its own, in order, and writes their points as one stream. Every
/// run that crashes, hangs or ends without its plan is a failed point. True when all points passed.
bool RunEachInItsProcess(const QString &program, const QStringList &options, const QStringList &files);
