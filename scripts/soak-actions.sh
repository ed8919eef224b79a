# What a user does with the program, at random; read by soak.sh.
#
# Each action begins with the main window active and nothing under way, and may leave anything open,
# running or asked. What it draws depends on the seed alone, never on what the program does, so that a
# seed always gives the same actions. None may end the program: no Ctrl+Q or Alt+Q, no close box, no
# click on the row with Quit, and no Tab but from a place that a mnemonic leads to.

readonly kinds=(move move move search search search entry entry entry present history time log log
  save_log preferences lunation lunation save_page help copy save_state click click lists window)

readonly entries=('2003-12-31 CE 15:55' '1999-08-11 CE 11:03' '-3200-01-01 CE' '5999-12-31 CE 23:59'
  '1582-10-04 JC' '4723-10-13 ARC' '33-46-09-14 SD 06:00' '127-06-04-3 LLT' '1-98-06-08 KSG'
  '5026-09-2-4 OLW' '2461367.25 CJD' '2461366.75 AJD' '2024-02-29' '12:30'
  '' 'rubbish' '2003-02-30 CE' '2003-12-31 CE 25:61' '6000-01-02 CE' '-3201-12-31 CE' '99-99 ARC'
  '99999999999999999999 CJD' '1-98-06-08 KSG 1-98-06-08 KSG' '-- CE' '0000000000000000000000000 JC')

readonly day_counts=(0 1 30 365 146097 -5 1.5 99999999 x '')

press() { xdotool key --delay 20 "$@"; }
enter() { xdotool type --delay 5 -- "$1"; }
pause() { sleep "0.$1"; }

# draw N: a number from 0 to N - 1 in $drawn. A subshell would draw from a sequence of its own.
draw() { drawn=$((RANDOM % $1)); }

# draw_of WORD...: one of them in $drawn.
draw_of() {
  draw $#
  shift "$drawn"
  drawn=$1
}

# press_some KEY MOST: up to so many times.
press_some() {
  draw $(($2 + 1))
  local key=$1 times=$drawn i
  for ((i = 0; i < times; ++i)); do press "$key"; done
}

press_one_of() {
  draw_of "$@"
  press "$drawn"
}

# choose ROWS: in the list that has the focus.
choose() {
  press space
  pause 1
  press Home
  press_some Down "$1"
  press_one_of Return Return Return Escape
}

# click BUTTON LEFT TOP: in percent of the window that is active.
click() {
  local WINDOW X Y WIDTH HEIGHT SCREEN
  eval "$(xdotool getactivewindow getwindowgeometry --shell 2>/dev/null)"
  [[ -n ${WIDTH:-} ]] || return 0
  xdotool mousemove $((X + WIDTH * $2 / 100)) $((Y + HEIGHT * $3 / 100)) click "$1"
}

# To the file dialog: now and then the name of a file that is there, whose loss must be confirmed.
save_as() {
  draw 3
  local name=$drawn
  pause 3
  press ctrl+a
  enter "$work/saved $name.$1"
  press Return
  pause 2
  press_one_of Return Escape
}

action_move() {
  press alt+e
  choose 1
  press alt+e shift+Tab shift+Tab shift+Tab shift+Tab
  choose 19
  press_one_of alt+f alt+b
  press_some alt+y 1
  press alt+v
  local i
  for i in 1 2 3; do
    draw 9
    pause "$drawn"
    press_one_of alt+u alt+u alt+t alt+f Escape # some of them late, or without effect
  done
}

action_search() {
  press alt+e Tab
  choose 13
  press_one_of alt+x alt+i
  press_some alt+s 4
  pause 2
}

action_entry() {
  press alt+l
  draw_of "${entries[@]}"
  enter "$drawn"
  press_one_of Return alt+c alt+v alt+s
  pause 1
  press_one_of Return Escape
  press alt+d ctrl+a
  draw_of "${day_counts[@]}"
  enter "$drawn"
  press_one_of alt+p alt+m
  press alt+c
  press_one_of Return Escape
}

action_present() {
  press_one_of alt+n alt+r
  pause 1
  press_one_of Return Escape
}

action_history() {
  press_some alt+Left 8
  press_some alt+Right 8
  click 1 36 92
  pause 1
  press_some Down 7
  press_one_of Return Escape
}

action_time() {
  press_one_of alt+g alt+o
  press alt+z
  choose 48
}

action_log() {
  press_some alt+a 1
  press alt+v alt+h alt+w
  pause 2
  press_some ctrl+a 1
  press alt+c
  click 1 40 30
  press_some alt+l 1
  press_one_of Return Escape
}

action_save_log() {
  press alt+v alt+h alt+w
  pause 2
  press alt+s
  save_as txt
}

action_preferences() {
  press ctrl+p
  pause 2
  press_one_of alt+e alt+r
  local i
  for i in 1 2 3 4; do press_one_of alt+c alt+j alt+a alt+s alt+l alt+k alt+d alt+u alt+p alt+g; done
  press_one_of alt+equal alt+comma alt+o
}

action_lunation() {
  click 1 45 97
  pause 1
  press_some Down 3
  press Return
  press ctrl+l
  pause 2
  press_some Next 9
  press_some Prior 9
  draw 80
  local left=$((10 + drawn))
  draw 60
  click 1 "$left" $((20 + drawn))
  press_some Right 3
  press_some Down 3
}

action_save_page() {
  press ctrl+l
  pause 2
  press alt+s
  save_as png
}

action_help() {
  press F1
  pause 2
  press_some Down 9
  press_some Up 9
  press_some Next 3
  press_some alt+r 1
  pause 2
}

# The menu of a date, and its keys.
action_copy() {
  draw 10
  click 3 20 $((22 + 5 * drawn))
  pause 1
  press_some Down 2
  press_one_of Return Escape
  press ctrl+c
}

action_save_state() { press ctrl+s; }

action_click() {
  draw 99
  local left=$drawn
  draw 93 # above the row with Quit
  local top=$drawn
  draw_of 1 1 3
  click "$drawn" "$left" "$top"
  pause 1
  press_one_of Up Down Home End Prior Next ctrl+a ctrl+c Return Escape
  press_one_of Return Escape
}

# Opened, and left without a choice.
action_lists() {
  local list
  for list in alt+z alt+e; do
    press "$list" space
    pause 1
    press_some Down 9
    press Escape
  done
}

# Of the main window, which then has its place and size again.
action_window() {
  draw_of size size place icon
  case $drawn in
    size)
      draw 1600
      local width=$((drawn + 1))
      draw 1000
      xdotool windowsize "$main" "$width" $((drawn + 1))
      ;;
    place)
      draw 1300
      local left=$((drawn - 100))
      draw 900
      xdotool windowmove "$main" "$left" "$drawn"
      ;;
    icon) xdotool windowminimize "$main" ;;
  esac
  pause 5
  xdotool windowactivate "$main"
  xdotool windowsize "$main" "$main_width" "$main_height" windowmove "$main" 60 60
  pause 3
}
