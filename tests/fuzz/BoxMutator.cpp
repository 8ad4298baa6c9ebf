// How the fuzzer changes a file. The readers of other people's libraries do not tell it what they
// came across, so that it would spend its time on the sound of a file, of which there is most: half
// of what it does is therefore done to the boxes that describe it.

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <random>
#include <string_view>
#include <vector>

extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t *data, std::size_t size, std::size_t maxSize);
extern "C" std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size,
                                               std::size_t maxSize, unsigned seed);

namespace {

constexpr std::size_t HeaderSize = 8;

struct Box
{
    std::size_t at;
    std::size_t size;
};

std::uint32_t numberAt(const std::uint8_t *bytes)
{
    return std::uint32_t(bytes[0]) << 24 | std::uint32_t(bytes[1]) << 16 |
           std::uint32_t(bytes[2]) << 8 | bytes[3];
}

void putNumber(std::uint8_t *bytes, std::uint32_t number)
{
    for (int at = 0; at < 4; ++at)
        bytes[at] = static_cast<std::uint8_t>(number >> (24 - 8 * at));
}

bool holdsBoxes(const std::uint8_t *type)
{
    constexpr std::array<std::string_view, 12> Holders{"moov", "trak", "mdia", "minf",
                                                       "stbl", "moof", "traf", "edts",
                                                       "udta", "mvex", "dinf", "ilst"};
    const std::string_view name(reinterpret_cast<const char *>(type), 4);
    return std::ranges::find(Holders, name) != Holders.end();
}

void collect(const std::uint8_t *data, std::size_t from, std::size_t to, std::vector<Box> &boxes)
{
    while (from + HeaderSize <= to) {
        const std::size_t size = numberAt(data + from);
        if (size < HeaderSize || size > to - from)
            return;
        boxes.push_back({from, size});
        if (holdsBoxes(data + from + 4))
            collect(data, from + HeaderSize, from + size, boxes);
        from += size;
    }
}

class Mutation final
{
public:
    Mutation(std::uint8_t *data, std::size_t size, std::size_t maxSize, unsigned seed)
        : m_data(data)
        , m_size(size)
        , m_maxSize(maxSize)
        , m_random(seed)
    {
    }

    std::size_t apply()
    {
        std::vector<Box> boxes;
        collect(m_data, 0, m_size, boxes);
        if (boxes.empty() || below(2) == 0)
            return LLVMFuzzerMutate(m_data, m_size, m_maxSize);
        const Box box = boxes[below(boxes.size())];
        switch (below(5)) {
        case 0:
            return changeNumber(box.at, HeaderSize);
        case 1:
            return leaveOut(box);
        case 2:
            return repeat(box);
        case 3:
            return below(2) == 0 ? box.at + below(box.size) : takeType(box, boxes);
        default:
            return changeNumber(box.at + HeaderSize, box.size - HeaderSize);
        }
    }

private:
    std::size_t below(std::size_t end) { return m_random() % end; }

    std::size_t changeNumber(std::size_t at, std::size_t length)
    {
        constexpr std::array<std::uint32_t, 12> Numbers{
            0,          1,          2,          7,          8,          0xFF,
            0x10000000, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFE, 0xFFFFFFFF, 0x00FFFFFF};
        if (length < 4)
            return m_size;
        std::uint8_t *place = m_data + at + below(length / 4) * 4;
        const std::uint32_t near = numberAt(place) + static_cast<std::uint32_t>(below(9)) - 4;
        putNumber(place, below(3) == 0 ? near : Numbers[below(Numbers.size())]);
        return m_size;
    }

    std::size_t leaveOut(const Box &box)
    {
        const std::size_t end = box.at + box.size;
        std::memmove(m_data + box.at, m_data + end, m_size - end);
        return m_size - box.size;
    }

    std::size_t repeat(const Box &box)
    {
        if (m_size + box.size > m_maxSize)
            return m_size;
        std::memmove(m_data + box.at + box.size, m_data + box.at, m_size - box.at);
        return m_size + box.size;
    }

    std::size_t takeType(const Box &box, const std::vector<Box> &boxes)
    {
        std::memmove(m_data + box.at + 4, m_data + boxes[below(boxes.size())].at + 4, 4);
        return m_size;
    }

    std::uint8_t *m_data;
    std::size_t m_size;
    std::size_t m_maxSize;
    std::minstd_rand m_random;
};

} // namespace

std::size_t LLVMFuzzerCustomMutator(std::uint8_t *data, std::size_t size, std::size_t maxSize,
                                    unsigned seed)
{
    return std::max<std::size_t>(Mutation(data, size, maxSize, seed).apply(), 1);
}
