// Stands where Perl stands: has a prepared tool (PreparedTool.pl) do a call of the tool, and ends as the call ended.
// Whatever a prepared tool could do otherwise than a new one is left to Perl: another script, one with a configuration,
// options to Perl itself.
// It starts for each call, so it knows no Qt.
#include <cerrno>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include <sys/socket.h>
#include <sys/un.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

int connection = -1;

void passOn(int signal)
{
    const char number = char(signal);
    send(connection, &number, 1, MSG_NOSIGNAL);
}

std::string environmentText(const char* name)
{
    const char* text = std::getenv(name);
    return text ? text : "";
}

bool isForPrepared(int count, char** arguments)
{
    for (const char* name : { "PERL_UNICODE", "PERL5OPT", "PERL5LIB", "PERLIO", "EXIFTOOL_HOME" })
        if (std::getenv(name))
            return false;
    if (access((environmentText("HOME") + "/.ExifTool_config").c_str(), F_OK) == 0)
        return false;
    return count > 2 && arguments[1] == environmentText("QUORBEL_TEST_SHARE") + "/exiftool/exiftool"
        && std::string_view(arguments[2]) != "-config";
}

bool isWriting(int count, char** arguments)
{
    for (int i = 2; i < count; ++i) {
        const std::string_view argument(arguments[i]);
        if (argument == "-tagsfromfile" || (argument.starts_with('-') && argument.find('=') != argument.npos))
            return true;
    }
    return false;
}

bool connectTo(const std::string& name)
{
    sockaddr_un address{};
    address.sun_family = AF_UNIX;
    if (name.size() + 1 > sizeof address.sun_path)
        return false;
    // An abstract name begins with a zero byte.
    std::memcpy(address.sun_path + 1, name.data(), name.size());
    const auto length = socklen_t(offsetof(sockaddr_un, sun_path) + 1 + name.size());
    connection = socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
    return connection >= 0 && connect(connection, reinterpret_cast<const sockaddr*>(&address), length) == 0;
}

[[noreturn]] void endAs(int status)
{
    if (WIFSIGNALED(status)) {
        std::signal(WTERMSIG(status), SIG_DFL);
        raise(WTERMSIG(status));
    }
    _exit(WEXITSTATUS(status));
}

}  // namespace

int main(int count, char** arguments)
{
    const std::string name = environmentText("QUORBEL_PREPARED_TOOL");
    if (name.empty() || !isForPrepared(count, arguments)) {
        std::string perl = "/usr/bin/perl";
        arguments[0] = perl.data();
        execv(perl.c_str(), arguments);
        return 127;
    }
    if (!connectTo(name + (isWriting(count, arguments) ? "-writing" : "-reading"))) {
        std::perror("The prepared tool does not answer");
        return 255;
    }
    for (const int signal : { SIGTERM, SIGINT, SIGHUP, SIGQUIT })
        std::signal(signal, passOn);
    int status = 0;
    ssize_t got = 0;
    do {
        got = recv(connection, &status, sizeof status, MSG_WAITALL);
    } while (got < 0 && errno == EINTR);
    if (got == ssize_t(sizeof status))
        endAs(status);
    std::fputs("The prepared tool is gone\n", stderr);
    return 255;
}
