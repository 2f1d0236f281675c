#pragma once

#include "playlist/AddQueue.h"

#include <algorithm>
#include <map>
#include <string>
#include <vector>

namespace zentaro {

/// A path with "bad" in it is refused; one with "odd" raises a box of its own.
class FakeInspections : public InspectionRunner {
public:
    void Start(int ticket, const std::string& path) override
    {
        started.push_back(path);
        atWork[ticket] = path;
        most = std::max(most, atWork.size());
    }
    bool Recall(const std::vector<FileToRecall>& files) override
    {
        asked = files;
        return answersRecalls;
    }
    void Cancel(int ticket) override { atWork.erase(ticket); }

    static Inspection ResultFor(const std::string& path)
    {
        Inspection result;
        result.ok = path.find("bad") == std::string::npos;
        if (path.find("odd") != std::string::npos)
            result.notices.push_back({ "odd " + path });
        result.mediaInfo = "info of " + path;
        result.errorText = result.ok ? "" : "No good.";
        return result;
    }

    std::map<int, std::string> atWork; ///< by ticket
    std::vector<std::string> started;
    std::size_t most = 0;
    std::vector<FileToRecall> asked;
    bool answersRecalls = false;
};

} // namespace zentaro
