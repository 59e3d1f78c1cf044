// SPDX-License-Identifier: GPL-3.0-or-later
#include "cli/Orvanec.h"

#include "support/PumpProgram.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <iterator>

#include <sys/wait.h>
#include <unistd.h>

namespace orvane {

namespace fs = std::filesystem;

namespace {

std::string Bytes(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Program() {
    const char* other = std::getenv("ORVANEC_PROGRAM");
    return other ? other : ORVANEC;
}

} // namespace

Orvanec::Orvanec() {
    std::string pattern = (fs::temp_directory_path() / "orvanec-test-XXXXXX").string();
    folder_ = fs::canonical(mkdtemp(pattern.data()));
    fs::create_directory(folder_ / "work");
    folder_ /= "work"; // beside it stand the captured streams
}

Orvanec::~Orvanec() {
    std::error_code ignored;
    fs::remove_all(folder_.parent_path(), ignored);
}

std::string Orvanec::PathText(std::string_view name) const {
    return (IsForWindows() ? "Z:" : "") + NativeText(Path(name).string());
}

std::string Orvanec::NativeText(std::string path) {
    if (IsForWindows())
        std::replace(path.begin(), path.end(), '/', '\\');
    return path;
}

bool Orvanec::IsForWindows() { return Program().ends_with(".exe"); }

RunResult Orvanec::Run(const std::string& arguments, const std::string& before) const {
    const std::string streams = folder_.parent_path().string();
    const std::string command = "cd '" + folder_.string() + "' && export SOURCE_DATE_EPOCH=0 LC_ALL=C && (" +
                                before + " " + Program() + " " + arguments + ") >" + streams + "/out 2>" +
                                streams + "/err </dev/null";
    const int ended = std::system(command.c_str());
    return {WIFEXITED(ended) ? WEXITSTATUS(ended) : -1, Bytes(streams + "/out"), Bytes(streams + "/err")};
}

void Orvanec::WriteFile(std::string_view name, std::string_view bytes) const {
    std::ofstream file(Path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    ASSERT_TRUE(file.flush()) << name;
}

std::string Orvanec::ReadFile(std::string_view name) const { return Bytes(Path(name)); }

std::string Orvanec::Listing(std::string_view subfolder) const {
    std::vector<std::string> names;
    for (const fs::directory_entry& entry : fs::directory_iterator(Path(subfolder)))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    std::string listing;
    for (const std::string& name : names)
        listing += name + " ";
    return listing;
}

std::string PumpDocument() {
    return "\xA4<FSM_NAME>PMP\xA4/\r\n"
           "\xA4<POLYTASK>False\xA4/\r\n"
           "\xA4<SHOWTIMETARGET>False\xA4/\r\n"
           "\xA4<SHOWTIMINGMODE>False\xA4/\r\n"
           "\xA4<SHOWELSE>False\xA4/\r\n"
           "\xA4<BUILDFILE>\xA4/\r\n"
           "\xA4<LAUNCHSEG>0\xA4/\r\n"
           "\xA4<CODESEG>\xA4/\r\n"
           "\xA4<HEADERCOMMENT>;pump\xA4/\r\n"
           "\xA4<INITSEG>\xA4/\r\n"
           "\xA4<NVEM0DATA>\xA4/\r\n"
           "\xA4<TESTSEG>\xA4/\r\n"
           "\xA4<INSTANCES>\xA4/\r\n"
           "\xA4<COL0W>1890\xA4/\r\n"
           "\xA4<POLYTASK>False\xA4/\r\n"
           "\xA4<ROWVISIBLE>\xA4/\r\n"
           "  \xA4<ELSE>0\xA4/\r\n"
           "  \xA4<EXITACT>0\xA4/\r\n"
           "  \xA4<TIMEMODE>0\xA4/\r\n"
           "  \xA4<TIMETARGET>0\xA4/\r\n"
           "\xA4</ROWVISIBLE>\xA4/\r\n"
           "\xA4<EVENT>6:\xA4/\r\n"
           "  \xA4<CODE>;start?\xA4/\r\n"
           "\xA4</EVENT>\xA4/\r\n"
           "\xA4<EVENT>7:\xA4/\r\n"
           "  \xA4<CODE>;stop?\xA4/\r\n"
           "\xA4</EVENT>\xA4/\r\n"
           "\xA4<STATE>1:\xA4/\r\n"
           "  \xA4<NAME>Idle\xA4/\r\n"
           "  \xA4<ENTRY>;idle entry\xA4/\r\n"
           "  \xA4<COLWIDTH>945\xA4/\r\n"
           "  \xA4<TRANSITIONS>\r\n"
           "    \xA4<TRANS>6:2\xA4/\r\n"
           "  \xA4</TRANSITIONS>\xA4/\r\n"
           "\xA4</STATE>\r\n"
           "\xA4<STATE>2:\xA4/\r\n"
           "  \xA4<NAME>Run\xA4/\r\n"
           "  \xA4<ENTRY>;run entry\xA4/\r\n"
           "  \xA4<TIMINGMODE>1\xA4/\r\n"
           "  \xA4<TIMECONST>100\xA4/\r\n"
           "  \xA4<COLWIDTH>945\xA4/\r\n"
           "  \xA4<TRANSITIONS>\r\n"
           "    \xA4<TRANS>4:1\xA4/\r\n"
           "    \xA4<TRANS>7:1\xA4/\r\n"
           "    \xA4<TACT>7:;stop action\xA4/\r\n"
           "  \xA4</TRANSITIONS>\xA4/\r\n"
           "\xA4</STATE>\r\n";
}

// A file ends with one line end more than the text of the program.
std::string PumpProgram(std::string_view path, std::string_view date) {
    return PumpProgramText(path, date) + "\r\n";
}

std::string DocumentWithoutName() { return "\xA4<POLYTASK>False\xA4/\r\n"; }

std::string DocumentWithErrors() {
    return "\xA4<FSM_NAME>BAD\xA4/\r\n"
           "\xA4<STATE>1:\xA4/\r\n"
           "\xA4<NAME>K\xFChl\xA4/\r\n"
           "\xA4<TIMINGMODE>1\xA4/\r\n"
           "\xA4<TRANSITIONS>\r\n"
           "\xA4<TRANS>4:1\xA4/\r\n"
           "\xA4<TRANS>6:1\xA4/\r\n"
           "\xA4</TRANSITIONS>\xA4/\r\n"
           "\xA4</STATE>\r\n"
           "\r\n";
}

std::string Field(const std::string& tag, const std::string& value) {
    return "\xA4<" + tag + ">" + value + "\xA4/\r\n";
}

std::string State(const std::string& number, const std::string& name, const std::string& fields,
                  const std::vector<std::string>& transitions) {
    std::string text = Field("STATE", number + ":") + Field("NAME", name) + fields + "\xA4<TRANSITIONS>\r\n";
    for (const std::string& transition : transitions)
        text += Field("TRANS", transition);
    return text + Field("/TRANSITIONS", "") + "\xA4</STATE>\r\n";
}

std::string Replaced(std::string text, std::string_view from, std::string_view to) {
    for (std::size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

} // namespace orvane
