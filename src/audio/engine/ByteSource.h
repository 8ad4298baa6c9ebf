#pragma once

#include <QByteArray>
#include <QString>

#include <memory>
#include <vector>

namespace tarvelo::engine {

// Bytes that are read a piece here and a piece there: those of a file, or some that lie in memory.
// A file may change or become unreadable meanwhile; then there are fewer, and it is said. For one
// thread at a time.
class ByteSource final
{
public:
    static std::shared_ptr<ByteSource> ofBytes(const QByteArray &bytes);
    // As large as the file is now; null for what is missing or no ordinary file. Never waits, as
    // opening a pipe would.
    static std::shared_ptr<ByteSource> ofFile(const QString &path);
    ByteSource(const ByteSource &) = delete;
    ByteSource &operator=(const ByteSource &) = delete;
    ~ByteSource();

    qint64 size() const { return m_size; }
    // How many there were: fewer than asked for only at the end, or when no more could be read.
    qint64 read(qint64 at, char *bytes, qint64 count);
    // The same; those in memory are not copied.
    QByteArray piece(qint64 at, qint64 count);
    // Something before the end could not be read.
    bool hasFailed() const { return m_hasFailed; }

private:
    ByteSource(QByteArray bytes, int file, qint64 size);
    qint64 readFile(qint64 at, char *bytes, qint64 count);

    const QByteArray m_bytes;
    const int m_file; // -1 when they lie in memory
    const qint64 m_size;
    std::vector<char> m_window; // of the file, for small pieces
    qint64 m_windowAt = 0;
    bool m_hasFailed = false;
};

} // namespace tarvelo::engine
