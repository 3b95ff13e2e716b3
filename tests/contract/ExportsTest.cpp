// The border of the library: what a host can link, exactly as exports.txt lists it. A class is
// there whole, with its constructors, destructors, virtual table and type; nothing else is.
#include "ContractResource.h"
#include "PortableExecutable.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cxxabi.h>
#include <iterator>
#include <memory>
#include <sstream>

namespace {

using Names = std::vector<std::string>;

/// A name as the source has it. Constructors and destructors come several times over: for whole
/// objects, for base classes, and with the object's memory.
std::string Demangled(const std::string& name) {
    int status = 0;
    const std::unique_ptr<char, decltype(&std::free)> text(
        abi::__cxa_demangle(name.c_str(), nullptr, nullptr, &status), &std::free);
    return status == 0 ? text.get() : name;
}

Names Exported() {
    Names names;
    for (const std::string& name : PortableExecutable(BinaryFolder() / L"Cuadros.dll").exports())
        names.push_back(Demangled(name));
    std::ranges::sort(names);
    return names;
}

/// The lines of exports.txt, which is linked in as a resource.
Names Listed() {
    const HRSRC list = ::FindResource(nullptr, MAKEINTRESOURCE(ID_EXPORTS), RT_RCDATA);
    std::istringstream lines(
        std::string(static_cast<const char*>(::LockResource(::LoadResource(nullptr, list))),
                    ::SizeofResource(nullptr, list)));
    Names names;
    for (std::string line; std::getline(lines, line);)
        names.push_back(line);
    return names;
}

std::string Lines(const Names& names) {
    std::string text;
    for (const std::string& name : names)
        text += "  " + name + "\n";
    return text;
}

Names Without(const Names& all, const Names& those) {
    Names left;
    std::ranges::set_difference(all, those, std::back_inserter(left));
    return left;
}

} // namespace

TEST(Exports, ListIsSorted) {
    EXPECT_TRUE(std::ranges::is_sorted(Listed()));
    EXPECT_FALSE(Listed().empty());
}

TEST(Exports, AreThoseOfTheList) {
    const Names missing = Without(Listed(), Exported());
    const Names unexpected = Without(Exported(), Listed());
    EXPECT_TRUE(missing.empty()) << "Listed, but not exported:\n" << Lines(missing);
    EXPECT_TRUE(unexpected.empty()) << "Exported, but not listed:\n" << Lines(unexpected);
}

TEST(Exports, LanguageFileHasNone) {
    EXPECT_EQ(PortableExecutable(BinaryFolder() / L"CuadrosENU.dll").exports(), Names{});
}
