#pragma once

#include <QFile>
#include <QObject>
#include <QTemporaryFile>

#include <functional>

namespace tarvelo::audio {

// Copies a file a piece at a time, with the windows alive in between: a lecture of two hours has
// 80 megabytes. The copy has its name only when it is whole and on the disk, and never takes that
// of something that is there already; what is given up leaves nothing behind. The folder of the
// target must be there.
class FileCopy final : public QObject
{
    Q_OBJECT

public:
    static constexpr qint64 PieceSize = 1 << 20; // bytes

    // `ended` is called once, whether or not there is a copy now: by start() itself when the file
    // has no second piece, else later; this object goes then. Not when it goes before.
    FileCopy(const QString &source, const QString &target, std::function<void()> ended,
             QObject *parent);

    void start();

private:
    bool begin();
    bool copyPiece();
    void goOn();
    void end();

    QFile m_source;
    QTemporaryFile m_sibling;
    QString m_target;
    std::function<void()> m_ended;
};

} // namespace tarvelo::audio
