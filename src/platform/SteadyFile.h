#pragma once

#include <QString>

namespace tarvelo::platform {

// A small file of text that is replaced as a whole, again and again: whatever happens, the old or
// the new content stands there, and the new one is on the disk when replace() returns. It holds
// room for its successor, so that it can be replaced also when the disk is full by then; the
// content is therefore followed by blanks. For one thread at a time.
class SteadyFile final
{
public:
    explicit SteadyFile(QString path);

    // False when the old content stands, or may stand again after a power cut.
    bool replace(const QByteArray &content);
    // The file with its room.
    void remove();
    // The same, but the file stays under another name, also of another folder of its disk.
    bool renameTo(const QString &path);

private:
    bool writeSpare(const QByteArray &content, qint64 room) const;
    bool takePlace();
    void dropSpare() const;
    QString spare() const;

    QString m_path;
    qint64 m_room = 0;
    bool m_namesAreSynced = false; // what a process left that is gone is not known
};

} // namespace tarvelo::platform
