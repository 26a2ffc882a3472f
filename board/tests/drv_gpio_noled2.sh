#!/bin/sh
# board: ABCDEF noled2
# An unknown six-byte model counts as supported.  Without "led-gpio1" only
# the "lan1/wan" LED (chip port 3) is driven.
. /lib/board.sh
board_load
check "driver bound" test -e /proc/rtl8304
check "only the lan1/wan LED and the reset line requested" eq 2 \
	"$(grep -cE "gpio-$GPIO_RESET .*switchnet-reset|gpio-$GPIO_LED1 .*rtl8304 lan1/wan" /sys/kernel/debug/gpio)"
check "nothing else" eq 2 "$(grep -cE 'rtl8304|switchnet' /sys/kernel/debug/gpio)"
board_link 3 up
led() { [ "$(gpio_level "$1")" = "$2" ]; }
check "port 3 lights it" wait_until 5 led $GPIO_LED1 lo
board_unload
finish
