#ifndef KRM_DATA_WORKDIR_H
#define KRM_DATA_WORKDIR_H

// The file layer works by changing into a data directory and using plain file
// names. A WorkDir remembers the working directory when it is made and goes
// back there when it goes out of scope, at every exit of a function.
class WorkDir
{
public:
    WorkDir();
    ~WorkDir();
    WorkDir(const WorkDir&) = delete;
    WorkDir& operator=(const WorkDir&) = delete;

    // Changes into a directory given by its device path; false when it can't.
    bool enter(const char* devicePath);
    // Goes back to the remembered directory now.
    void restore();

private:
    int savedFd;
};

#endif
