# 32-bit Linux, on a 64-bit machine with both compilers' libraries.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR i686)
set(CMAKE_CXX_FLAGS_INIT -m32)
