// Long random series of operations, done to strings of the framework and of the standard library
// side by side: whatever is shared, forked, grown or moved, both hold the same texts.

#include <afx.h>

#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <random>
#include <string>

namespace {

template <typename Ch>
class SideBySide {
    using Standard = std::basic_string<Ch>;
    using Ours = CStringT<Ch>;

public:
    explicit SideBySide(unsigned seed) : m_random(seed) {}

    void Run(int steps) {
        for (int step = 0; step < steps && !testing::Test::HasFailure(); ++step) {
            const int operation = Below(operations);
            Do(operation, Below(strings), Below(strings));
            for (int i = 0; i < strings; ++i)
                ASSERT_TRUE(IsSame(m_ours[i], m_standard[i]))
                    << "string " << i << " after step " << step << ", operation " << operation;
        }
    }

private:
    static constexpr int strings = 6;
    static constexpr int operations = 27;

    int Below(int end) { return static_cast<int>(m_random() % static_cast<unsigned>(end)); }

    Ch Letter() { return static_cast<Ch>('a' + Below(4)); }

    /// Mostly short, sometimes long: long texts make buffers grow.
    Standard Text() {
        Standard text(static_cast<size_t>(Below(20) == 0 ? Below(300) : Below(5)), Ch{});
        std::generate(text.begin(), text.end(), [this] { return Letter(); });
        return text;
    }

    /// An index that may lie outside of the text.
    int Index(const Standard& text) { return Below(static_cast<int>(text.size()) + 4) - 2; }

    static bool IsSame(const Ours& ours, const Standard& standard) {
        return ours.GetLength() == static_cast<int>(standard.size()) &&
               ours.GetAllocLength() >= ours.GetLength() &&
               std::equal(standard.begin(), standard.end(), ours.GetString()) &&
               ours.GetString()[ours.GetLength()] == Ch{};
    }

    static int Position(size_t position) {
        return position == Standard::npos ? -1 : static_cast<int>(position);
    }

    static int Sign(int number) { return (number > 0) - (number < 0); }

    void Do(int operation, int target, int source) {
        Ours& ours = m_ours[target];
        Standard& standard = m_standard[target];
        const Standard text = Text();
        const Ch letter = Letter();
        const Ch other = Letter();
        const int size = static_cast<int>(standard.size());
        const int index = Index(standard);
        const int inside = std::clamp(index, 0, size);
        const int count = Index(standard);
        const int counted = std::clamp(count, 0, size - inside);

        switch (operation) {
        case 0:
            ours = m_ours[source];
            standard = m_standard[source];
            break;
        case 1:
            ours = Ours(m_ours[source]);
            standard = m_standard[source];
            break;
        case 2:
            if (target != source) {
                ours = std::move(m_ours[source]);
                standard = std::exchange(m_standard[source], Standard());
            }
            break;
        case 3:
            ours = text.c_str();
            standard = text;
            break;
        case 4:
            if (size < 2000) {
                ours += m_ours[source];
                standard += Standard(m_standard[source]);
            }
            break;
        case 5:
            ours += text.c_str();
            standard += text;
            break;
        case 6:
            ours += letter;
            standard += letter;
            break;
        case 7:
            ours = m_ours[source].Mid(index, count);
            standard = m_standard[source].substr(
                std::min(static_cast<size_t>(std::max(index, 0)), m_standard[source].size()),
                static_cast<size_t>(std::max(count, 0)));
            break;
        case 8:
            ours = ours.Left(count);
            standard = standard.substr(0, static_cast<size_t>(std::max(count, 0)));
            break;
        case 9:
            ours = ours.Right(count);
            standard = standard.substr(static_cast<size_t>(size - std::clamp(count, 0, size)));
            break;
        case 10:
            EXPECT_EQ(ours.Insert(index, text.c_str()), size + static_cast<int>(text.size()));
            standard.insert(static_cast<size_t>(inside), text);
            break;
        case 11:
            EXPECT_EQ(ours.Insert(index, letter), size + 1);
            standard.insert(static_cast<size_t>(inside), 1, letter);
            break;
        case 12:
            EXPECT_EQ(ours.Delete(index, count), size - counted);
            standard.erase(static_cast<size_t>(inside), static_cast<size_t>(counted));
            break;
        case 13:
            EXPECT_EQ(ours.Remove(letter), static_cast<int>(std::erase(standard, letter)));
            break;
        case 14:
            ours.Replace(letter, other);
            std::replace(standard.begin(), standard.end(), letter, other);
            break;
        case 15: {
            if (size > 1000)
                break;
            const Standard old = Text().substr(0, 2);
            int replaced = 0;
            for (size_t at = 0; !old.empty() && (at = standard.find(old, at)) != Standard::npos;
                 at += text.size(), ++replaced)
                standard.replace(at, old.size(), text);
            EXPECT_EQ(ours.Replace(old.c_str(), text.c_str()), replaced);
            break;
        }
        case 16:
            ours.MakeReverse();
            std::reverse(standard.begin(), standard.end());
            break;
        case 17:
            ours.TrimLeft(letter);
            standard.erase(0, standard.find_first_not_of(letter));
            break;
        case 18:
            ours.TrimRight(letter);
            standard.erase(standard.find_last_not_of(letter) + 1);
            break;
        case 19:
            ours.Truncate(inside);
            standard.resize(static_cast<size_t>(inside));
            break;
        case 20:
            if (size > 0) {
                ours.SetAt(std::min(inside, size - 1), letter);
                standard[static_cast<size_t>(std::min(inside, size - 1))] = letter;
            }
            break;
        case 21: {
            const int room = Below(100);
            Ch* const buffer = ours.GetBuffer(room);
            EXPECT_TRUE(std::equal(standard.begin(), standard.end(), buffer));
            standard.assign(static_cast<size_t>(room), letter);
            std::fill_n(buffer, room, letter);
            buffer[room] = Ch{};
            ours.ReleaseBuffer(Below(2) == 0 ? room : -1);
            break;
        }
        case 22:
            ours.FreeExtra();
            break;
        case 23:
            ours.Empty();
            standard.clear();
            break;
        case 24:
            EXPECT_EQ(ours.Find(text.c_str(), inside),
                      Position(standard.find(text, static_cast<size_t>(inside))));
            EXPECT_EQ(ours.Find(letter, inside),
                      Position(standard.find(letter, static_cast<size_t>(inside))));
            EXPECT_EQ(ours.ReverseFind(letter), Position(standard.rfind(letter)));
            EXPECT_EQ(ours.FindOneOf(text.c_str()), Position(standard.find_first_of(text)));
            break;
        case 25:
            EXPECT_EQ(Sign(ours.Compare(text.c_str())), Sign(standard.compare(text)));
            EXPECT_EQ(ours == m_ours[source], standard == m_standard[source]);
            EXPECT_EQ(ours < m_ours[source], standard < m_standard[source]);
            EXPECT_EQ(ours >= text.c_str(), standard >= text);
            break;
        case 26:
            ours = m_ours[source] + ours.Left(100) + letter;
            standard = m_standard[source] + standard.substr(0, 100) + letter;
            if (standard.size() > 4000) {
                ours.Truncate(1000);
                standard.resize(1000);
            }
            break;
        default:
            FAIL() << "There is no operation " << operation;
        }
    }

    std::mt19937 m_random;
    std::array<Ours, strings> m_ours;
    std::array<Standard, strings> m_standard;
};

TEST(CStringRandom, WideStringsBehaveAsTheStandardOnes) {
    SideBySide<wchar_t>(20240611).Run(60'000);
}

TEST(CStringRandom, NarrowStringsBehaveAsTheStandardOnes) {
    SideBySide<char>(20240612).Run(60'000);
}

} // namespace
