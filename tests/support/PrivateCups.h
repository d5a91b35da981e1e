// A print server of the test's own: cupsd started as a child process on a
// temporary folder and a free port of localhost, with its own configuration,
// spool, logs and queues, and libcups of this process pointed at it. Each
// queue's output lands in a file of the folder, for the tests to read.
#pragma once

#include <chrono>
#include <string>
#include <vector>

// What a program that ran wrote and how it ended.
struct ToolResult {
    int status = -1;     // exit status; -1 when it could not be started or was killed
    std::string output;  // standard output
    std::string errors;  // standard error, or why it could not be started
};

// Runs the program argv[0], looked up on PATH and then in /usr/sbin and /sbin
// (where the print system's administration tools live), and waits for it.
ToolResult Tool_Run(const std::vector<std::string>& argv);

// A job of a queue as the server keeps it, the finished ones included.
struct QueueJob {
    int id;
    std::string title;
    int state;  // ipp_jstate_t: 3 pending ... 9 completed
};

class PrivateCups {
public:
    // Starts the server and waits until it answers; Running() tells whether
    // it did, Why() why not. While the server lives, CUPS_SERVER names it
    // (for libcups and for the tools started from the test) and LPDEST and
    // PRINTER are unset, so that the default printer is the server's own.
    PrivateCups();
    // Stops the server, removes its folder and gives the environment and
    // libcups back their server.
    ~PrivateCups();
    PrivateCups(const PrivateCups&) = delete;
    PrivateCups& operator=(const PrivateCups&) = delete;

    bool Running() const { return pid_ > 0; }
    // Why the server is not running, or why the last change of a queue
    // failed, with the lines of its error log that tell.
    const std::string& Why() const { return why_; }
    // "localhost:PORT".
    const std::string& Server() const { return server_; }
    const std::string& Folder() const { return dir_; }

    // Adds an enabled queue whose jobs land, byte for byte, in Output(name):
    // each job replaces the file. False, with the tool's words in Why(), on failure.
    bool AddQueue(const std::string& name);
    // Makes the queue the server's default printer.
    bool SetDefault(const std::string& name);
    // Stops the queue: it still accepts jobs, which wait in it.
    bool StopQueue(const std::string& name);
    std::string Output(const std::string& name) const;

    // Waits until the queue has no job waiting or printing; false on timeout.
    bool WaitIdle(const std::string& name, std::chrono::milliseconds timeout = std::chrono::seconds(20));
    // All jobs the server has had on the queue, by job id.
    std::vector<QueueJob> Jobs(const std::string& name) const;
    // The server's error log as it stands.
    std::string ErrorLog() const;

private:
    bool Start();
    void Stop();
    bool Admin(const std::vector<std::string>& argv);

    std::string dir_, server_, why_;
    int pid_ = -1;
    std::string savedServer_, savedLpdest_, savedPrinter_;
    bool hadServer_ = false, hadLpdest_ = false, hadPrinter_ = false;
};
