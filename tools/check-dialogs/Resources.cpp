#include "Resources.h"

std::set<int> resourcesOf(HMODULE module, LPCWSTR type) {
    std::set<int> numbers;
    EnumResourceNamesW(
        module, type,
        [](HMODULE, LPCWSTR, LPWSTR name, LONG_PTR set) -> BOOL {
            if (IS_INTRESOURCE(name))
                reinterpret_cast<std::set<int>*>(set)->insert(
                    static_cast<int>(reinterpret_cast<ULONG_PTR>(name)));
            return TRUE;
        },
        reinterpret_cast<LONG_PTR>(&numbers));
    return numbers;
}

Bytes bytesOf(HMODULE module, int number, LPCWSTR type) {
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(number), type);
    if (resource == nullptr)
        return {};
    return {static_cast<const BYTE*>(LockResource(LoadResource(module, resource))),
            SizeofResource(module, resource)};
}
