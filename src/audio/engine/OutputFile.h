#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <string>

namespace tarvelo::engine {

// A regular file of this user's own (mode 0600) that is open for writing. Every operation says
// whether it worked; a short write is one that did not. `sync()` may run on another thread than the
// rest.
class OutputFile final
{
public:
    // Creates or truncates. Null when that fails, or when a thing that is no regular file stands
    // there: opening never waits for the other end of a pipe.
    static std::unique_ptr<OutputFile> create(const std::string &path);
    OutputFile(const OutputFile &) = delete;
    OutputFile &operator=(const OutputFile &) = delete;
    ~OutputFile();

    std::int64_t size() const { return m_size; }
    const std::string &path() const { return m_path; }

    // At the end of the file: whole, or not at all.
    bool append(std::span<const std::uint8_t> bytes);
    bool writeAt(std::int64_t offset, std::span<const std::uint8_t> bytes);
    // What was to be appended last found no room, and would have with more.
    bool isOutOfRoom() const { return m_isOutOfRoom; }
    // Forces the content to the disk, and the name.
    bool sync();

private:
    OutputFile(std::string path, int descriptor);

    std::string m_path;
    int m_descriptor;
    std::int64_t m_size = 0;
    bool m_isOutOfRoom = false;
    bool m_isNameSynced = false;
};

} // namespace tarvelo::engine
