#pragma once

#include <ctime>

/** The processor time of this process so far, in seconds: unlike the clock it leaves out who else was served.
 */
inline double cpuSeconds()
{
    timespec time;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return double(time.tv_sec) + double(time.tv_nsec) * 1e-9;
}
