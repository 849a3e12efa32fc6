#!/usr/bin/perl
# Plays ExifTool for many calls of one test: it has compiled the tool, and each call gets a child of it, in which the
# tool's script runs from its first statement. That the tool is compiled anew for each is most of what a call costs.
# Arguments: the numbers of two listening sockets, of calls that read and of calls that write; the tool's script.
# A caller (ToolCaller.cpp) connects; what it was given is found by its process. It may send the numbers of signals, a
# byte each, and gets the exit status as wait() tells it. A caller that goes away takes its call with it.
# Ends with standard input.
package PreparedTool;
use strict;
use warnings;
use Fcntl;
use POSIX ();
use Socket;

my ($reading, $writing, $script) = @ARGV;
# Two processes, as a call must find no more of the tool's modules than it would load itself: by their tables the tool
# knows which values belong together.
my $other = fork // die "No second process: $!\n";
my $isWriter = $other == 0;
my ($mine, $others) = $isWriter ? ($writing, $reading) : ($reading, $writing);
open my $listener, '+<&=', $mine or die "No socket: $!\n";
POSIX::close($others);
$SIG{PIPE} = 'IGNORE';

sub load_modules
{
    require Image::ExifTool;
    require Image::ExifTool::Exif;
    require Image::ExifTool::GPS;
    require Image::ExifTool::MakerNotes;
    require Image::ExifTool::XMP;
    return unless $isWriter;
    require "Image/ExifTool/$_" foreach qw(Writer.pl TagLookup.pm Fixup.pm WriteXMP.pl WriteExif.pl IPTC.pm
        WriteIPTC.pl Photoshop.pm WritePhotoshop.pl MIE.pm MacOS.pm Panasonic.pm PNG.pm PDF.pm QuickTime.pm
        PostScript.pm HP.pm Pentax.pm XMP2.pl);
}

sub content
{
    local $/;
    open my $file, '<:raw', $_[0] or return '';
    return <$file> // '';
}

# Never waits for who is at the other end of a pipe: nobody may be, any more.
sub take_stream
{
    my ($path, $mode, $number) = @_;
    my $opened = POSIX::open($path, $mode | O_NONBLOCK) // POSIX::open('/dev/null', $mode);
    POSIX::dup2($opened, $number);
    POSIX::close($opened) if $opened > 2;
}

# In the child: becomes what the caller is.
sub become
{
    my $caller = "/proc/$_[0]";
    my (undef, undef, @arguments) = split /\0/, content("$caller/cmdline"), -1;
    pop @arguments;
    @ARGV = @arguments;
    %ENV = map { /^([^=]+)=(.*)$/s ? ($1, $2) : () } split /\0/, content("$caller/environ");
    POSIX::tzset();
    umask oct $1 if content("$caller/status") =~ /^Umask:\s*([0-7]+)/m;
    chdir "$caller/cwd";
    take_stream("$caller/fd/0", O_RDONLY, 0);
    take_stream("$caller/fd/1", O_WRONLY, 1);
    take_stream("$caller/fd/2", O_WRONLY, 2);
    foreach my $stream (*STDIN, *STDOUT, *STDERR) {
        my $flags = fcntl $stream, F_GETFL, 0;
        fcntl $stream, F_SETFL, $flags & ~O_NONBLOCK;
    }
    $SIG{PIPE} = 'DEFAULT';
    $^T = time;
}

our $alive;  # held open by a call as long as it runs

# Returns in each call's child; never in the process itself.
sub serve
{
    my %calls;
    for (;;) {
        my $wanted = '';
        vec($wanted, fileno $_, 1) = 1 foreach *STDIN, $listener, map { @$_{qw(connection end)} } values %calls;
        select(my $ready = $wanted, undef, undef, undef) > 0 or next;
        if (vec $ready, fileno STDIN, 1) {
            kill 'KILL', keys %calls;
            POSIX::_exit(0);
        }
        foreach my $child (keys %calls) {
            my ($connection, $end) = @{$calls{$child}}{qw(connection end)};
            if (vec $ready, fileno $end, 1) {
                waitpid $child, 0;
                syswrite $connection, pack 'l', $?;
                delete $calls{$child};
            } elsif (vec $ready, fileno $connection, 1) {
                my $signals = '';
                kill 'KILL', $child unless sysread $connection, $signals, 16;
                kill $_, $child foreach unpack 'C*', $signals;
            }
        }
        next unless vec($ready, fileno $listener, 1) and accept(my $connection, $listener);
        my ($caller) = unpack 'l', getsockopt $connection, SOL_SOCKET, SO_PEERCRED;
        pipe my $end, my $begin or die "No pipe: $!\n";
        my $child = fork // die "No process for a call: $!\n";
        if ($child == 0) {
            close $_ foreach $listener, $connection, $end, map { @$_{qw(connection end)} } values %calls;
            $alive = $begin;
            become($caller);
            return;
        }
        $calls{$child} = { connection => $connection, end => $end };
    }
}

# Nothing is loaded for a test that calls nothing.
{
    my $wanted = '';
    vec($wanted, fileno $_, 1) = 1 foreach *STDIN, $listener;
    select(my $ready = $wanted, undef, undef, undef);
    POSIX::_exit(0) unless vec $ready, fileno $listener, 1;
}

package main;
$^W = 1;  # as the script's first line has it
$0 = $script;
@ARGV = ();
PreparedTool::load_modules();
# All of it is compiled before the first statement runs, which is the one put in front.
eval "PreparedTool::serve();\n#line 1 \"$script\"\n" . PreparedTool::content($script);
print STDERR $@;
exit 255;
