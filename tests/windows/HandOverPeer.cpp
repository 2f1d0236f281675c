#include "platform/HandOver.h"
#include "platform/TextFile.h"

#include <windows.h>

// send HANDLE TEXT FILE: ends with 0 when the text was taken and the file was there as soon as that was known
// listen FILE:           writes both handles, then receives until it is killed
// lock FILE:             takes the lock, writes the file, keeps the lock until it is killed
int main(int count, char** arguments)
{
    using namespace zentaro;
    using namespace zentaro::platform;
    const std::string mode = count > 1 ? arguments[1] : "";
    if (mode == "send" && count == 5)
        return SendHandOverText(arguments[2], arguments[3]) && PathExists(arguments[4]) ? 0 : 1;
    if (count != 3)
        return 2;
    if (mode == "lock") {
        const auto lock = HandOverLock::Take(std::chrono::seconds(5));
        if (lock)
            IgnoreFailure(ReplaceTextFile(arguments[2], "taken"));
        Sleep(INFINITE);
    }
    const auto ends = HandOverEnds::Listen();
    if (mode != "listen" || !ends)
        return 2;
    (*ends)->Deliver([](const std::string&) {});
    IgnoreFailure(ReplaceTextFile(arguments[2], (*ends)->CommandHandle() + " " + (*ends)->ProbeHandle()));
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0)
        DispatchMessageA(&message);
}
