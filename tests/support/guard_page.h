// SPDX-License-Identifier: BSD-3-Clause
// A block of exactly n bytes that ends where an inaccessible page begins,
// so that any access past its end faults, and whose start is offset from a
// page boundary only by what its size leaves (any alignment): the check
// that a function stays within a size it reported.
#pragma once
#include <sys/mman.h>
#include <unistd.h>

#include <cstddef>
#include <cstring>

namespace qsptest {

class GuardPageBlock {
public:
    // n bytes (n may be 0: data() is then the guard page itself), filled
    // with `fill`.
    explicit GuardPageBlock(size_t n, unsigned char fill = 0xA5) : n_(n)
    {
        const size_t page = size_t(sysconf(_SC_PAGESIZE));
        body_ = (n + page - 1) / page * page;
        void* p = mmap(nullptr, body_ + page, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE,
                       -1, 0);
        if (p == MAP_FAILED) return;
        base_ = static_cast<unsigned char*>(p);
        mprotect(base_ + body_, page, PROT_NONE);
        total_ = body_ + page;
        data_ = base_ + body_ - n;
        if (n) std::memset(data_, fill, n);
    }
    ~GuardPageBlock()
    {
        if (base_) munmap(base_, total_);
    }
    GuardPageBlock(const GuardPageBlock&) = delete;
    GuardPageBlock& operator=(const GuardPageBlock&) = delete;

    bool ok() const { return base_ != nullptr; }
    unsigned char* data() { return data_; }
    size_t size() const { return n_; }

private:
    size_t n_ = 0, body_ = 0, total_ = 0;
    unsigned char* base_ = nullptr;
    unsigned char* data_ = nullptr;
};

}  // namespace qsptest
