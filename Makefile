# RTL8304MB switch driver: kernel module, chip library, chip model and tests.
#
#   make check        every test (installs what it needs)
#   make test-host    host tests of the chip library and model
#
# The virtual board (board/board.mk) and the kernel module build
# (mk/kmod.mk) add their own targets and extend CHECK_TARGETS.

BUILD ?= build
HOST_BUILD := $(BUILD)/host
JOBS ?= $(shell nproc)

CHECK_TARGETS := test-host

.PHONY: all check test-host deps-host clean

all: test-host

-include mk/kmod.mk
-include board/board.mk

check: $(CHECK_TARGETS)

deps-host:
	@scripts/ensure-deps.sh host

test-host: deps-host
	@mkdir -p $(HOST_BUILD)
	@cmake -S tests/host -B $(HOST_BUILD) -DCMAKE_BUILD_TYPE=Debug >$(HOST_BUILD)/configure.log 2>&1 || \
		{ cat $(HOST_BUILD)/configure.log; echo "test-host: cmake configuration failed" >&2; exit 1; }
	cmake --build $(HOST_BUILD) -j $(JOBS)
	cd $(HOST_BUILD) && ctest --output-on-failure -j $(JOBS)

clean:
	rm -rf $(BUILD)
