# Virtual board: an ARM kernel in QEMU with the chip model on a real MDIO bus.
#
#   make demo                              build everything, boot, walk through the board
#   make shell                             boot into an interactive busybox shell
#   make board-run SCRIPT=path [BOARD=..]  run one guest script (BOARD: variant words)
#   make test-board [BOARD_TESTS=..]       every board/tests/*.sh, one boot each
#   make board-kernel                      only the kernel tree (KDIR for module builds)
#
# BOARD_KIND=arm64-6.1 (default) or arm-6.12 chooses the board for each of
# them; the kinds are listed in board/build.sh.  Output in
# $(BOARD_BUILD)/<kind>; its linux/ is the configured kernel tree.

BOARD_BUILD ?= $(BUILD)/board
BOARD_KIND ?= arm64-6.1
BOARD_TESTS ?= $(wildcard board/tests/*.sh)
BOARD_KINDS := $(shell board/build.sh kinds)

# The kind's settings (KIND_ARCH, KIND_CROSS, ...) as make variables.
BOARD_KIND_ENV := $(shell BOARD_KIND=$(BOARD_KIND) board/build.sh env)
ifneq ($(.SHELLSTATUS),0)
$(error $(BOARD_KIND_ENV))
endif
$(foreach v,$(BOARD_KIND_ENV),$(eval $(v)))

BOARD_ENV = BOARD_BUILD=$(abspath $(BOARD_BUILD)) BOARD_KIND=$(BOARD_KIND)

# RTL8304_KO (a module file, or "none") is the user's choice of driver for
# board/run.sh, from the environment or make's command line.  A makefile
# value would be exported in place of the environment's and run.sh would
# boot another module without a word, so none may set it.  With it given,
# the tree's driver is not built for the boot.
ifneq ($(findstring |$(origin RTL8304_KO)|,|file|override|),)
$(error RTL8304_KO is set in a makefile ($(origin RTL8304_KO)); only the user sets it)
endif
BOARD_BOOT_PREREQ := $(if $(RTL8304_KO),board,board-driver)

# The device-tree bindings and every board tree (board/dt-check.sh); before
# the board tests, whose count closes make check.
CHECK_TARGETS += check-dt check-board

.PHONY: board-deps board-kernel board board-modules board-driver board-run test-board \
	demo shell check-dt check-board

board-deps:
	@scripts/ensure-deps.sh board

board-kernel: board-deps
	@$(BOARD_ENV) board/build.sh kernel

# The kernel and the board's modules: what the driver's module build needs.
board-modules: board-deps
	@$(BOARD_ENV) board/build.sh modules

board: board-deps
	@$(BOARD_ENV) board/build.sh all

board-driver: board module

board-run: $(BOARD_BOOT_PREREQ)
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh $(if $(BOARD),--board "$(BOARD)") $(SCRIPT)

test-board: $(BOARD_BOOT_PREREQ)
	@$(BOARD_ENV) board/test.sh $(BOARD_TESTS)

demo: $(BOARD_BOOT_PREREQ)
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh board/demo.sh

shell: $(BOARD_BOOT_PREREQ)
	@$(BOARD_ENV) BOARD_NO_BUILD=1 board/run.sh $(if $(BOARD),--board "$(BOARD)") --shell

check-dt:
	@BOARD_BUILD=$(abspath $(BOARD_BUILD)) board/dt-check.sh $(foreach k,$(BOARD_KINDS),--kind $(k))

# make check: every kind's board and driver, then every board test on every
# kind, counted together in one "board: N passed, M failed" line.
check-board:
	@for k in $(BOARD_KINDS); do \
		$(MAKE) --no-print-directory BOARD_KIND=$$k board-driver || exit 1; done
	@$(BOARD_ENV) board/test.sh $(foreach k,$(BOARD_KINDS),--kind $(k)) $(BOARD_TESTS)
