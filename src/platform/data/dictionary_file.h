#pragma once

#include "platform/data/file_state.h"
#include "platform/data/session.h"

#include <QString>
#include <memory>

namespace data
{

/// Opens the dictionary file at a drive path, never creating one. The session stands in a read
/// transaction. An index that is missing, or of another fold, is built where the file is writable; for
/// a file that is not, the session reads an indexed copy in the temporary folder, made once for the
/// run, and still refuses to write. Raises 76 on a missing drive, -2147467259 for what is no dictionary.
std::shared_ptr<Session> OpenDictionaryFile(const QString &drivePath);

/// Builds the index of a file that lacks it, as long work; does nothing where it stands.
void BuildIndex(Session &session);

/// Creates an empty dictionary file, without its table, at a drive path; raises -2147467259 when
/// something stands there or the file cannot be made.
std::shared_ptr<Session> CreateDictionaryFile(const QString &drivePath);

/// Raises -2147467259 when something stands at a host path.
void RequireNothingAt(const QString &hostPath);

/// A file that was copied and its copy, as they are then.
struct CopyStates {
    FileState source, copy;
};

/// Copies the rows of a dictionary file, with their AutoIDs and the AutoIncrement counter, to a new file
/// (host paths), indexed and compact, and verifies rows, order and structure. The mark of a dictionary is
/// written last and flushed. The state of the source of which this is the copy, and that of the copy. Raises
/// as RequireNothingAt for the target, and -2147467259 where somebody has put another file there meanwhile;
/// on any other failure nothing stays there.
CopyStates CopyDictionary(const QString &sourcePath, const QString &targetPath,
                          const QString &targetDrivePath);

/// Takes what stands in a log beside a dictionary file into the file, and ends the mode in which its writes
/// go there (another program's choice), so that the file alone is the dictionary. Raises -2147467259 where
/// somebody else has it open in that mode.
void EndLog(const QString &hostPath);

} // namespace data
