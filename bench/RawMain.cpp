// The plain options dialog by hand in a process of its own, which knows of no framework. Its
// argument is the event that it sets when the dialog is painted.
#include "bench/ChildEvent.h"
#include "bench/Desk.h"
#include "bench/raw/OptionsDialog.h"

int wmain(int argc, wchar_t** argv) {
    bench::Desk desk;
    desk.whenPainted = [&](HWND dialog) {
        if (argc > 1)
            SetEvent(bench::handleOf(argv[1]));
        bench::pressOk(dialog);
    };
    bench::Options<std::wstring> options = bench::someOptions<std::wstring>();
    return bench::raw::OptionsDialog(options).run(desk.window()) == IDOK ? 0 : 1;
}
