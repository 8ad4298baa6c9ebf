#pragma once

#include <QByteArray>

#include <memory>
#include <vector>

struct sqlite3_stmt;

namespace tarvelo::store {

// A prepared statement and the bytes that are bound to it, which SQLite does not copy: they live as
// long as the statement. Finalised when it is destroyed or prepared anew.
class Statement final
{
public:
    Statement() = default;
    Statement(const Statement &) = delete;
    Statement &operator=(const Statement &) = delete;
    ~Statement() = default;

    // Null before a statement was prepared, and after one that could not be.
    sqlite3_stmt *get() const { return m_handle.get(); }

    // Takes over `handle` and finalises the one held before.
    void reset(sqlite3_stmt *handle);
    // Keeps `bytes` until the statement is finalised and returns them; they do not move.
    const QByteArray &keep(QByteArray bytes);

private:
    struct Finalize
    {
        void operator()(sqlite3_stmt *handle) const;
    };

    // Before the handle, so that the handle is finalised first.
    std::vector<QByteArray> m_bytes;
    std::unique_ptr<sqlite3_stmt, Finalize> m_handle;
};

} // namespace tarvelo::store
