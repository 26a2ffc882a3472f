# RTL8304MB switch driver: kernel module, chip library, chip model and tests.
#
#   make check        every test (installs what it needs)
#   make test-host    host tests of the chip library and model
#
# The virtual board (board/board.mk) and the kernel module build
# (mk/kmod.mk) add their own targets and extend CHECK_TARGETS.

BUILD ?= build
HOST_BUILD := $(BUILD)/host
JOBS ?= $(shell nproc 2>/dev/null || echo 2)

CHECK_TARGETS := test-host

.PHONY: all check test-host deps-host clean

all: test-host

-include mk/kmod.mk
-include board/board.mk

check: $(CHECK_TARGETS)

deps-host:
	@scripts/ensure-deps.sh host

test-host: deps-host
	cmake -S tests/host -B $(HOST_BUILD) -DCMAKE_BUILD_TYPE=Debug >/dev/null
	cmake --build $(HOST_BUILD) -j $(JOBS)
	cd $(HOST_BUILD) && ctest --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD)
