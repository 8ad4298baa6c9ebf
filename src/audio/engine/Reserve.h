#pragma once

#include <cstdint>
#include <string>

namespace tarvelo::engine {

// Room on the disk that is held for a take: whoever fills the disk meanwhile, its sound goes on
// into the file for a while, and enough is left to end it and to store the lecture with. It is a
// hidden file beside the take, the same for all that the take may be called by its extension; what
// a killed program left of it is gone when the next one is made.
class Reserve final
{
public:
    // Twice what the sound may have of it at the most.
    static constexpr std::int64_t MostBytes = std::int64_t{2} << 20;
    // What is held on a disk with so much room: on a small one most is needed for the sound before.
    static std::int64_t sizeOn(std::int64_t room);

    // Takes away what a process that is dead left for this take.
    static void removeLeft(const std::string &take);

    explicit Reserve(const std::string &take);
    Reserve(const Reserve &) = delete;
    Reserve &operator=(const Reserve &) = delete;
    ~Reserve();

    // What is held now: nothing when there was no room, or when it was given back.
    std::int64_t bytes() const { return m_bytes; }
    void giveBack();
    // So much of it; false when it cannot be had, or is not held.
    bool giveBack(std::int64_t bytes);
    // As much as in the beginning, when there is room for that again.
    bool holdAgain();

private:
    std::string m_path;
    std::int64_t m_bytes = 0;
    std::int64_t m_wanted = 0;
};

} // namespace tarvelo::engine
