/*
 * Counts the instructions a program executes under qemu-arm (a TCG plugin):
 *
 *   qemu-arm -cpu arm946 -L <armel root> -plugin libinsncount.so <program>
 *
 * Every translated block adds its number of instructions to one counter each
 * time it runs. A program marks the points it wants counted with insnMark()
 * (bench/insnmark.h): a write(2) to file descriptor -510, with the mark's
 * number as the length, which the kernel refuses at once. At each mark the
 * plugin prints the mark's number, the count so far and the count since the
 * previous mark; at the end, the total. Output goes to standard error.
 *
 * The plugin interface header comes from Debian's qemu source package
 * (scripts/armel-bench fetches it); nothing else of qemu is used.
 */
#include <qemu-plugin.h>

#include <stdio.h>

QEMU_PLUGIN_EXPORT int qemu_plugin_version = QEMU_PLUGIN_VERSION;

static uint64_t executed;
static uint64_t previous;

enum { armWrite = 4, markFd = -510 };

static void onTranslate(qemu_plugin_id_t id, struct qemu_plugin_tb* tb)
{
    (void)id;
    qemu_plugin_register_vcpu_tb_exec_inline(tb, QEMU_PLUGIN_INLINE_ADD_U64, &executed,
                                             qemu_plugin_tb_n_insns(tb));
}

static void onSyscall(qemu_plugin_id_t id, unsigned int vcpu, int64_t num, uint64_t a1, uint64_t a2,
                      uint64_t a3, uint64_t a4, uint64_t a5, uint64_t a6, uint64_t a7, uint64_t a8)
{
    (void)id, (void)vcpu, (void)a2, (void)a4, (void)a5, (void)a6, (void)a7, (void)a8;
    if (num != armWrite || (int32_t)(uint32_t)a1 != markFd)
        return;
    fprintf(stderr, "insncount: mark %u at %llu, +%llu\n", (unsigned)a3,
            (unsigned long long)executed, (unsigned long long)(executed - previous));
    previous = executed;
}

static void onExit(qemu_plugin_id_t id, void* data)
{
    (void)id, (void)data;
    fprintf(stderr, "insncount: total %llu\n", (unsigned long long)executed);
}

QEMU_PLUGIN_EXPORT int qemu_plugin_install(qemu_plugin_id_t id, const qemu_info_t* info, int argc,
                                           char** argv)
{
    (void)info, (void)argc, (void)argv;
    qemu_plugin_register_vcpu_tb_trans_cb(id, onTranslate);
    qemu_plugin_register_vcpu_syscall_cb(id, onSyscall);
    qemu_plugin_register_atexit_cb(id, onExit, NULL);
    return 0;
}
