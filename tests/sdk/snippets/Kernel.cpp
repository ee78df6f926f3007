// SPDX-License-Identifier: MIT
// The bus, had by its accessor.
#include <tarvik/core/TrvKernel.h>
#if WRONG == 4
#include <tarvik/core/BusTesting.h>
#endif

using Tarvik::Core::TrvKernel;

bool Ask() {
#if WRONG == 1
    TrvKernel own;
    TrvKernel* kernel = &own;
#elif WRONG == 2
    TrvKernel* kernel = new TrvKernel;
#elif WRONG == 3
    TrvKernel copy = *TrvKernel::Instance();
    TrvKernel* kernel = &copy;
#else
    TrvKernel* kernel = TrvKernel::Instance();
#endif
    return kernel->IsBound("TRV_S_USER");
}
